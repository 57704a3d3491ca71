// The arithmetic of the scan methods: which pixels a column of a given level joins.
#pragma once

#include <cstdint>

#include "engine/scan_methods.h"

namespace plenovia {

// The numbers of one run that the rules need, from the parameters.
struct ScanRules {
  ScanRules(std::int64_t width, std::int32_t gap, SourceKind kind, const TSirdsSettings& settings);

  // Left to right: column x takes the pixel at x + the distance.
  std::int64_t LeftToRightDistance(std::int64_t level) const {
    return level * levelShift / range - gap;
  }
  // McMahon: columns x and x + the distance hold the same pixel.
  std::int64_t McMahonDistance(std::int64_t level) const {
    return (level - zmin) * (gap / 2) / range - gap;
  }
  // Feucht: columns x - s / 2 and x - s / 2 + s hold the same pixel, s being the separation.
  std::int64_t FeuchtSeparation(std::int64_t level) const {
    const std::int64_t d = level * levelScale;
    return d == near ? 0 : (far - d) * reach / (near - d);
  }

  std::int64_t gap;
  std::int64_t zmin;
  std::int64_t range;       // of levels, never 0
  std::int64_t levelShift;  // of the left-to-right method
  std::int64_t levelScale;  // of Feucht's method, as are the following three
  std::int64_t far;
  std::int64_t near;
  std::int64_t reach;  // pixels
};

}  // namespace plenovia
