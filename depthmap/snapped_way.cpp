#include "depthmap/snapped_way.h"

#include <cstdlib>

namespace plenovia {

MapWay SnappedWay(const MapWay& way) {
  // 1 + sqrt(2): the slope half way between an axis and a diagonal.
  constexpr double kBetween = 2.414213562373095;
  const auto across = static_cast<double>(std::abs(way.right));
  const auto along = static_cast<double>(std::abs(way.down));
  if (across >= kBetween * along) return {way.right, 0};
  if (along >= kBetween * across) return {0, way.down};
  const std::int64_t length = (std::abs(way.right) + std::abs(way.down)) / 2;
  return {way.right < 0 ? -length : length, way.down < 0 ? -length : length};
}

}  // namespace plenovia
