#include "engine/separation_range.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace plenovia {

namespace {

constexpr int kWidest = 1024;
constexpr int kSampleRows = 48;
constexpr std::size_t kPiece = 12;  // pixels of a row that must repeat together

// What repeats at two separations one after the other repeats at their sum too. Whether separation
// `sum` looks like one: `costs`, those of all separations from 1 on, hold a match at 3 to 7 tenths
// of it.
bool IsSum(std::size_t sum, std::span<const std::uint8_t> costs, int highestOfMatch) {
  const auto parts = costs.subspan(3 * sum / 10, 2 * sum / 5);
  return std::any_of(parts.begin(), parts.end(), [=](int cost) { return cost <= highestOfMatch; });
}

// For each separation of `cost`, how many pieces of sampled rows repeat at it. Pieces that repeat
// nearly everywhere have no texture and do not count.
std::vector<int> CountRepeats(const MatchCost& cost) {
  constexpr int kSame = static_cast<int>(kPiece) * kChanceCost / 8;
  const auto count = static_cast<std::size_t>(cost.range().count());
  const RevealKernels& kernels = FastestRevealKernels(count);
  std::vector<int> repeats(count);
  std::vector<std::uint8_t> sums(kernels.Lanes(count));
  MatchCost::Scratch scratch;
  const int rows = std::min(kSampleRows, cost.height());
  for (int i = 0; i < rows; ++i) {
    const auto y =
        static_cast<int>((2 * i + 1) * static_cast<std::int64_t>(cost.height()) / (2 * rows));
    const PairRow row = cost.Row(y, scratch);
    for (std::size_t x = 0; x + kPiece <= row.width; x += kPiece) {
      kernels.addCosts(row, x, kPiece, sums.data());
      const std::size_t pairs = row.pairs[x];
      const auto end = sums.begin() + static_cast<std::ptrdiff_t>(pairs);
      const auto same = std::count_if(sums.begin(), end, [](int sum) { return sum <= kSame; });
      if (static_cast<std::size_t>(same) * 4 > pairs + 4) continue;
      for (std::size_t s = 0; s < pairs; ++s) {
        repeats[s] += sums[s] <= kSame && !IsSum(s + 1, {sums.data(), pairs}, kSame);
      }
    }
  }
  return repeats;
}

}  // namespace

SeparationRange FindSeparationRange(const IndexedImage& picture) {
  const SeparationRange widest{1, std::clamp(picture.width() / 2, 1, kWidest)};
  const MatchCost cost(picture, widest, RevealAnchor::kRight);
  const std::vector<int> repeats = CountRepeats(cost);
  const auto at = [&](int s) {
    return s >= 1 && s <= widest.largest ? repeats[static_cast<std::size_t>(s - 1)] : 0;
  };

  std::vector<int> sorted = repeats;
  const auto middle = sorted.begin() + static_cast<std::ptrdiff_t>(sorted.size() / 2);
  std::nth_element(sorted.begin(), middle, sorted.end());
  const int chance = *middle;

  // Neighbouring pixels look alike in many pictures: begin where that has faded.
  int first = 1;
  while (first < widest.largest && at(first + 1) < at(first)) ++first;
  int strongest = first;
  for (int s = first; s <= widest.largest; ++s) {
    if (at(s) > at(strongest)) strongest = s;
  }
  if (at(strongest) < 2 * chance + 4) return widest;

  const int least = chance + std::max(2, (at(strongest) - chance) / 25);
  // What repeats at a separation repeats at its double too, but less often. What lies close to the
  // range goes on from it, as a slope does.
  constexpr int kSlope = 8;
  const auto isDouble = [&](int s) {
    return 2 * std::max({at(s / 2 - 1), at(s / 2), at((s + 1) / 2)}) >= at(s);
  };
  SeparationRange range{strongest, strongest};
  // Beyond a wide stretch without repeats come sums of two separations.
  for (int s = strongest + 1; s <= std::min(strongest * 9 / 4, range.largest + strongest / 2 + 2);
       ++s) {
    const bool near = s - range.largest <= kSlope;
    if (at(s) >= least && (near || !isDouble(s))) range.largest = s;
  }
  // Near parts are often too small or too steep to leave a trace in the count.
  range.smallest = std::max(1, strongest * 9 / 25 - 1);
  range.largest = std::min(widest.largest, range.largest + 3);
  return range;
}

}  // namespace plenovia
