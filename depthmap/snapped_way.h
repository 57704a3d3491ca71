// Ways along the axes and diagonals.
#pragma once

#include <cstdint>

namespace plenovia {

struct MapWay {
  std::int64_t right = 0;
  std::int64_t down = 0;
  bool operator==(const MapWay&) const = default;
};

// The way along the axis or diagonal that is next to this one.
MapWay SnappedWay(const MapWay& way);

}  // namespace plenovia
