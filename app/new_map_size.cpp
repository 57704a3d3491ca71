#include "app/new_map_size.h"

#include "platform/limits.h"

namespace plenovia {

namespace {

constexpr auto kSection = "Map";

bool IsSize(const QSize& size) {
  return size.width() > 0 && size.height() > 0 && size.width() <= kMaxSide &&
         size.height() <= kMaxSide;
}

}  // namespace

void NewMapSize::Choose(const QSize& size, const TSirdsSettings& settings) {
  chosen_ = size;
  settings_ = {settings.w, settings.h};
}

QSize NewMapSize::Of(const TSirdsSettings& settings) const {
  const QSize record(settings.w, settings.h);
  return IsSize(chosen_) && settings_ == record ? chosen_ : record;
}

NewMapSize NewMapSize::Load(const ProfileFile& file) {
  NewMapSize size;
  size.chosen_ = {file.GetInt(kSection, "Width", 0), file.GetInt(kSection, "Height", 0)};
  size.settings_ = {file.GetInt(kSection, "RecordWidth", 0),
                    file.GetInt(kSection, "RecordHeight", 0)};
  return size;
}

void NewMapSize::Store(ProfileFile& file) const {
  if (!IsSize(chosen_)) return;
  file.SetInt(kSection, "Width", chosen_.width());
  file.SetInt(kSection, "Height", chosen_.height());
  file.SetInt(kSection, "RecordWidth", settings_.width());
  file.SetInt(kSection, "RecordHeight", settings_.height());
}

}  // namespace plenovia
