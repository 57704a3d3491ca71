#include "depthmap/selection_edits.h"

#include <algorithm>
#include <limits>

#include "depthmap/picking.h"

namespace plenovia {

namespace {

void ShiftAll(std::vector<std::unique_ptr<TDepthObj>>& objects, const MapWay& way) {
  for (const auto& object : objects) {
    DepthGeometry geometry = Shifted(object->GetGeometry(), way);
    object->ExchangeGeometry(geometry);
  }
}

void AddAndSelect(TDepthList& list, std::vector<std::unique_ptr<TDepthObj>> objects) {
  std::vector<const TDepthObj*> added;
  for (auto object = objects.rbegin(); object != objects.rend(); ++object) {
    added.push_back(object->get());
    list.AddObject(std::move(*object));
  }
  if (!added.empty()) list.SelectAll(added);
}

}  // namespace

DepthGeometry Shifted(const DepthGeometry& geometry, const MapWay& way) {
  DepthGeometry shifted{geometry.rect.Shifted(way.right, way.down), geometry.points};
  const std::int64_t right = std::int64_t{shifted.rect.x1} - geometry.rect.x1;
  const std::int64_t down = std::int64_t{shifted.rect.y1} - geometry.rect.y1;
  constexpr std::int64_t kLow = std::numeric_limits<std::int32_t>::min();
  constexpr std::int64_t kHigh = std::numeric_limits<std::int32_t>::max();
  for (DepthPoint& point : shifted.points) {
    point.x = static_cast<std::int32_t>(std::clamp(point.x + right, kLow, kHigh));
    point.y = static_cast<std::int32_t>(std::clamp(point.y + down, kLow, kHigh));
  }
  return shifted;
}

ShiftedSelection::ShiftedSelection(TDepthList& list) : list_(list) {
  for (const TDepthObj* object : list.Selection()) {
    objects_.emplace_back(object, object->GetGeometry());
  }
}

void ShiftedSelection::ShiftTo(const MapWay& way) {
  const MapEdit edit(list_, EditKind::kMove);
  for (const auto& [object, start] : objects_) list_.SetGeometry(object, Shifted(start, way));
}

void ShiftSelection(TDepthList& list, const MapWay& way) {
  ShiftedSelection(list).ShiftTo(way);
}

void PutSelectionOnTop(TDepthList& list) {
  const MapEdit edit(list, EditKind::kRestack);
  const std::vector<TDepthObj*> fromTop = list.SelectionFromTop();
  std::for_each(fromTop.rbegin(), fromTop.rend(),
                [&](const TDepthObj* object) { list.PutAbove(object, list.Head()); });
}

void PutSelectionAtBottom(TDepthList& list) {
  PutSelectionAbove(list, list.Background());
}

void PutSelectionAbove(TDepthList& list, const TDepthObj* below) {
  const MapEdit edit(list, EditKind::kRestack);
  while (below != list.Background() && below->IsSelected()) below = TDepthList::Below(*below);
  for (const TDepthObj* object : list.SelectionFromTop()) list.PutAbove(object, below);
}

std::unique_ptr<TDepthObj> Copied(const TDepthObj& object) {
  auto copy =
      std::make_unique<TDepthObj>(nullptr, DepthRect{}, object.GetKind(), object.GetLevel());
  DepthGeometry geometry = object.GetGeometry();
  copy->ExchangeGeometry(geometry);
  return copy;
}

std::vector<std::unique_ptr<TDepthObj>> CopiedSelection(const TDepthList& list) {
  std::vector<std::unique_ptr<TDepthObj>> copies;
  for (const TDepthObj* object : list.SelectionFromTop()) {
    if (object != list.Background()) copies.push_back(Copied(*object));
  }
  return copies;
}

void DuplicateSelection(TDepthList& list) {
  const MapEdit edit(list, EditKind::kDuplicate);
  std::vector<std::unique_ptr<TDepthObj>> copies = CopiedSelection(list);
  ShiftAll(copies, kCopyOffset);
  AddAndSelect(list, std::move(copies));
}

void PasteObjects(TDepthList& list, std::vector<std::unique_ptr<TDepthObj>> objects) {
  const MapEdit edit(list, EditKind::kPaste);
  if (objects.empty()) return;
  std::vector<DepthGeometry> there;
  for (const TDepthObj* object : ObjectsAboveBackground(list)) {
    if (object->GetKind() == objects.front()->GetKind()) there.push_back(object->GetGeometry());
  }
  while (std::find(there.begin(), there.end(), objects.front()->GetGeometry()) != there.end()) {
    const DepthGeometry before = objects.front()->GetGeometry();
    ShiftAll(objects, kCopyOffset);
    if (objects.front()->GetGeometry() == before) break;  // at the end of the numbers
  }
  AddAndSelect(list, std::move(objects));
}

}  // namespace plenovia
