#include "engine/reveal_strip.h"

#include <algorithm>

namespace plenovia {

namespace {

constexpr int kLeadIn = 12;  // rows outside the strip where vertical paths begin

constexpr int kReach = 4;
constexpr int kRepeatsUpTo = 25 * kChanceCost / 8;

// Whether the neighbourhood of a pixel, a grid of 5 x 5 samples, repeats at a separation.
bool RepeatsAround(const MatchCost& matchCost, int x, int y, int separation) {
  int left = kRepeatsUpTo;
  for (int v = std::max(0, y - kReach); v < std::min(matchCost.height(), y + kReach + 1); v += 2) {
    for (int u = x - kReach; u <= x + kReach; u += 2) {
      left -= matchCost.PairCost(u, v, separation);
      if (left < 0) return false;
    }
  }
  return true;
}

// Where a row repeats, it also repeats at twice the separation. That one looks better where it lies
// closer to the separations around, so the half is tried too.
bool IsTwiceTheRepeat(const MatchCost& matchCost, int x, int y, int half) {
  return RepeatsAround(matchCost, x, y, half) &&
         !RepeatsAround(matchCost, x, y, half + half / 2);  // what has no texture repeats anywhere
}

}  // namespace

StripSearch::StripSearch(const MatchCost& matchCost, int rows)
    : matchCost_(matchCost),
      kernels_(FastestRevealKernels(static_cast<std::size_t>(matchCost.range().count()))),
      outside_(static_cast<std::size_t>(matchCost.width()) *
               kernels_.Lanes(static_cast<std::size_t>(matchCost.range().count()))),
      lowest_(static_cast<std::size_t>(matchCost.width())),
      alongRow_(outside_.size() + lowest_.size()),
      fromBelow_(static_cast<std::size_t>(rows) * outside_.size()) {}

void StripSearch::Run(int first, int end, std::span<std::uint16_t> separations,
                      std::span<std::uint8_t> certainties) {
  StepFromBelow(first, end);
  BeginPaths();
  const auto width = static_cast<std::size_t>(matchCost_.width());
  for (int y = std::max(0, first - kLeadIn); y < end; ++y) {
    const PairRow row = matchCost_.Row(y, scratch_);
    if (y < first) {
      kernels_.stepRow(row, Outside(), Outside());
      continue;
    }
    const std::size_t offset = static_cast<std::size_t>(y) * width;
    const auto found = separations.subspan(offset, width);
    const auto certain = certainties.subspan(offset, width);
    kernels_.joinRow(row, Outside(), BelowAt(y - first));
    kernels_.searchRow(row, BelowAt(y - first), alongRow_.data(), found.data(), certain.data());
    PreferHalves(y, row, found);
    WeighByTexture(row, certain);
  }
}

void StripSearch::BeginPaths() {
  std::fill(outside_.begin(), outside_.end(), std::uint8_t{0});
  std::fill(lowest_.begin(), lowest_.end(), std::uint8_t{0});
}

void StripSearch::StepFromBelow(int first, int end) {
  BeginPaths();
  PathRow before = Outside();
  for (int y = std::min(matchCost_.height(), end + kLeadIn) - 1; y >= first; --y) {
    const PathRow after = y < end ? PathRow{BelowAt(y - first), lowest_.data()} : before;
    kernels_.stepRow(matchCost_.Row(y, scratch_), before, after);
    before = after;
  }
}

void StripSearch::PreferHalves(int y, const PairRow& row, std::span<std::uint16_t> separations) {
  halves_.resize(row.width);
  const std::size_t count =
      kernels_.findHalves(row, separations.data(), kRepeatsUpTo, halves_.data());
  for (const std::uint16_t x : std::span(halves_).first(count)) {
    const int half = separations[x] / 2;
    if (IsTwiceTheRepeat(matchCost_, x, y, half)) separations[x] = static_cast<std::uint16_t>(half);
  }
}

// Sums of 13 neighbours are made of sums of 2, 4 and 8. What is enough stays enough in all of them.
void StripSearch::WeighByTexture(const PairRow& row, std::span<std::uint8_t> certainties) {
  constexpr std::size_t kHalf = 6;
  constexpr std::uint8_t kEnough = (2 * kHalf + 1) * kChanceCost / 4;
  const std::size_t width = row.width;
  const std::size_t room = width + 32;
  changes_.resize(3 * room);
  std::uint8_t* one = changes_.data();
  std::uint8_t* four = one + room;
  std::uint8_t* eight = four + room;
  std::fill_n(one, room, std::uint8_t{0});
  for (std::size_t c = 0; c < row.channels; ++c) {
    const std::uint8_t* pixels = row.pixels + c * row.stride;
    for (std::size_t x = 2; x < width; ++x) {
      const auto change = static_cast<std::uint8_t>(std::max(pixels[x - 2], pixels[x]) -
                                                    std::min(pixels[x - 2], pixels[x]));
      const auto sum = static_cast<std::uint8_t>(one[kHalf + x] + std::min(change, kHighestCost));
      one[kHalf + x] = std::min(sum, kHighestCost);
    }
  }
  const auto add = [room](const std::uint8_t* from, std::size_t distance, std::uint8_t* to) {
    for (std::size_t x = 0; x < room - distance; ++x) {
      const auto sum = static_cast<std::uint8_t>(from[x] + from[x + distance]);
      to[x] = sum < kEnough ? sum : kEnough;
    }
  };
  add(one, 1, eight);
  add(eight, 2, four);
  add(four, 4, eight);
  for (std::size_t x = 0; x < width; ++x) {
    const auto texture = static_cast<std::uint16_t>(eight[x] + four[x + 8] + one[x + 12]);
    const std::uint16_t weight = texture < kEnough ? texture : kEnough;
    certainties[x] =
        static_cast<std::uint8_t>(static_cast<std::uint16_t>(certainties[x] * weight) / kEnough);
  }
}

}  // namespace plenovia
