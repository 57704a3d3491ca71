#include "viewing/found_again.h"

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <limits>
#include <span>

namespace plenovia {

SearchedSeparations SeparationsToSearch(const LevelHistogram& histogram,
                                        const SeparationTable& separations) {
  constexpr std::int64_t kSmallest = 4;
  constexpr std::int64_t kCount = 1024;
  if (histogram.empty()) return {};
  std::int64_t least = std::numeric_limits<std::int64_t>::max();
  std::int64_t most = std::numeric_limits<std::int64_t>::min();
  for (const LevelCount& entry : histogram) {
    const std::int64_t separation = separations(entry.level);
    least = std::min(least, separation);
    most = std::max(most, separation);
  }
  const std::int64_t largest = std::clamp(most + 1, kSmallest + 1, kSmallest + kCount - 1);
  return {static_cast<int>(std::clamp(least - 1, kSmallest, largest - 1)),
          static_cast<int>(largest)};
}

FoundAgain CompareFound(const RevealedDepth& revealed, const LevelField& truth,
                        const SeparationTable& separations, RevealAnchor anchor) {
  FoundAgain result{.picture = RgbPicture(revealed.width, revealed.height)};
  const bool known = truth.width() == revealed.width && truth.height() == revealed.height;
  const int range = std::max(1, revealed.largest - revealed.smallest);
  for (int y = 0; y < revealed.height; ++y) {
    const auto row = result.picture.Row(y);
    const auto found = std::span(revealed.separation)
                           .subspan(static_cast<std::size_t>(y) * row.size(), row.size());
    for (std::size_t x = 0; x < row.size(); ++x) {
      const int gray =
          found[x] == 0 ? 0 : std::clamp((revealed.largest - found[x]) * 255 / range, 0, 255);
      row[x] = OpaqueColour(gray, gray, gray);
      if (!known) continue;
      const std::int64_t right = separations(truth.Row(y)[x]);
      const auto column = static_cast<std::int64_t>(x);
      const std::int64_t left =
          anchor == RevealAnchor::kCentre ? column - (right >> 1) : column - right;
      if (right <= 0 || left < 0 || left + right >= revealed.width) {
        row[x] = kOutsideColour;
        continue;
      }
      ++result.counted;
      if (std::abs(found[x] - right) <= 1) {
        ++result.found;
      } else {
        row[x] = kWrongColour;
      }
    }
  }
  return result;
}

}  // namespace plenovia
