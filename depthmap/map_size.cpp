#include "depthmap/map_size.h"

#include <algorithm>

namespace plenovia {

void ResizeMap(TDepthList& list, std::int32_t width, std::int32_t height) {
  width = std::max(width, 1);
  height = std::max(height, 1);
  const MapEdit edit(list, EditKind::kMapSize);
  list.SetSize(width, height);
  const TDepthObj* background = list.Background();
  if (background == nullptr || background->GetKind() == PolygonObj) return;
  const DepthRect& rect = background->GetRect();
  const std::int32_t left = std::min(rect.x1, rect.x2);
  const std::int32_t top = std::min(rect.y1, rect.y2);
  const DepthRect end = DepthRect{left, top, left, top}.Shifted(width, height);
  list.SetGeometry(background, {{left, top, end.x1, end.y1}, {}});
}

}  // namespace plenovia
