// How large a new depth map is.
#pragma once

#include <QSize>

#include "engine/sirds_settings.h"
#include "platform/profile_file.h"

namespace plenovia {

// The size that a map was given last, or that of the record of parameters when it is newer.
class NewMapSize {
 public:
  void Choose(const QSize& size, const TSirdsSettings& settings);
  QSize Of(const TSirdsSettings& settings) const;

  static NewMapSize Load(const ProfileFile& file);
  void Store(ProfileFile& file) const;

 private:
  QSize chosen_{0, 0};
  QSize settings_{0, 0};  // the record's when it was chosen
};

}  // namespace plenovia
