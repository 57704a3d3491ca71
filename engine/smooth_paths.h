// Dynamic programming over separations along one direction: the cheapest way to a pixel's
// separation, where a change of separation between neighbours costs something too. After
// Hirschmueller, "Stereo processing by semiglobal matching and mutual information", 2008.
#pragma once

#include <cstddef>
#include <cstdint>

#include "engine/byte_lanes.h"
#include "engine/match_cost.h"

namespace plenovia {

// What it costs when the separations of neighbours differ.
struct ChangeCost {
  std::uint8_t byOne;
  std::uint8_t byMore;
};

// Between rows, over the costs of pairs.
inline constexpr ChangeCost kBetweenRows{2, 24};
// Along a row, over those costs and the mean of the paths from above and below.
inline constexpr ChangeCost kAlongRow{4, 48};

// The highest path costs with these: that of a pixel and of a change before it.
inline constexpr std::uint8_t kHighestBetweenRows = MatchCost::kHighestCost + kBetweenRows.byMore;
inline constexpr std::uint8_t kHighestAlongRow =
    MatchCost::kHighestCost + kHighestBetweenRows + kAlongRow.byMore;
static_assert(2 * kHighestAlongRow < 255, "sums of two path costs must fit into a byte");

// A cost for the bytes beyond the last separation that no path goes through.
inline constexpr std::uint8_t kBeyondCost = kHighestBetweenRows + 1;

// The path costs of the next pixel on a path: `before` and `lowestBefore` are those of the pixel
// before it and their minimum, `cost` its own. All point to `lanes` bytes; the bytes next to
// `before` on both sides must be readable. Returns the minimum of `path`.
template <ChangeCost kChange>
std::uint8_t StepPath(const std::uint8_t* before, std::uint8_t lowestBefore,
                      const std::uint8_t* cost, std::size_t lanes, std::uint8_t* path) {
  const ByteLanes lowest = SameLanes(lowestBefore);
  const ByteLanes jump = lowest + kChange.byMore;
  ByteLanes minimum = SameLanes(255);
  for (std::size_t i = 0; i < lanes; i += kByteLanes) {
    const ByteLanes step =
        Min(LoadLanes(before + i - 1), LoadLanes(before + i + 1)) + kChange.byOne;
    const ByteLanes way = Min(Min(LoadLanes(before + i), step), jump) - lowest;
    const ByteLanes sum = LoadLanes(cost + i) + way;
    StoreLanes(path + i, sum);
    minimum = Min(minimum, sum);
  }
  return LowestLane(minimum);
}

}  // namespace plenovia
