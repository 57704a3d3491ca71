#include "depthmap/selection_edits.h"

#include <algorithm>
#include <limits>

namespace plenovia {

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

}  // namespace plenovia
