// Where the distances that a row is shifted by change.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

namespace plenovia {

// By level: the number that a scan method works with instead.
using DistanceTable = std::array<std::int32_t, 256>;

// The columns from `start` to the next stretch's start have the same distance.
struct DistanceStretch {
  std::int32_t start;
  std::int32_t distance;
};

// Writes the stretches of a row of levels from column 0 on, and after them one that starts at the
// number of columns. `stretches` has room for one more entry than there are levels. Returns the
// number of stretches. One byte before and 64 after the levels are read.
std::size_t FindDistanceStretches(std::span<const std::uint8_t> levels,
                                  const DistanceTable& distances,
                                  std::span<DistanceStretch> stretches);

}  // namespace plenovia
