#include "engine/reveal_strip.h"

#include <algorithm>

#include "engine/smooth_paths.h"

namespace plenovia {

namespace {

constexpr int kLeadIn = 12;  // rows outside the strip where vertical paths begin

std::size_t Find(const std::uint8_t* bytes, std::uint8_t value, std::size_t count) {
  return static_cast<std::size_t>(std::find(bytes, bytes + count, value) - bytes);
}

std::uint8_t Lowest(const std::uint8_t* bytes, std::size_t lanes) {
  ByteLanes lowest = SameLanes(255);
  for (std::size_t i = 0; i < lanes; i += kByteLanes) lowest = Min(lowest, LoadLanes(bytes + i));
  return LowestLane(lowest);
}

constexpr std::uint8_t kBarred = 255;  // above all sums of path costs

// By how much the sum of the choice is below the lowest one of separations that are not beside it,
// in parts of that one; less where the lead is small in itself.
std::uint8_t Certainty(int best, int other) {
  constexpr int kClearLead = 3 * MatchCost::kChanceCost;
  const int lead = other - best;
  if (lead <= 0 || other == kBarred) return 0;
  return static_cast<std::uint8_t>(255 * lead / other * std::min(lead, kClearLead) / kClearLead);
}

// Whether the neighbourhood of a pixel, a grid of 5 x 5 samples, repeats at a separation.
bool RepeatsAround(const MatchCost& matchCost, int x, int y, int separation) {
  constexpr int kReach = 4;
  int left = 25 * MatchCost::kChanceCost / 8;
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
bool IsTwiceTheRepeat(const MatchCost& matchCost, int x, int y, int separation) {
  const int half = separation / 2;
  if (separation % 2 != 0 || half < matchCost.range().smallest) return false;
  return RepeatsAround(matchCost, x, y, half) &&
         !RepeatsAround(matchCost, x, y, half + half / 2);  // what has no texture repeats anywhere
}

}  // namespace

StripSearch::Paths::Paths(const MatchCost& matchCost, std::size_t width)
    : lanes_(matchCost.lanes()), costs_(width * lanes_ + 2 * kByteLanes), lowest_(width) {
  std::fill(costs_.begin(), costs_.end(), kBeyondCost);
  std::fill(lowest_.begin(), lowest_.end(), std::uint8_t{0});
}

StripSearch::StripSearch(const MatchCost& matchCost, int rows)
    : matchCost_(matchCost),
      width_(static_cast<std::size_t>(matchCost.width())),
      lanes_(matchCost.lanes()),
      costs_(width_ * lanes_),
      start_(matchCost, width_),
      fromLeft_(matchCost, width_),
      fromRight_(matchCost, 2),
      fromAbove_(2, fromLeft_),
      outside_(2, fromLeft_),
      fromBelow_(static_cast<std::size_t>(rows), fromLeft_),
      sums_(lanes_) {
  const auto count = static_cast<std::size_t>(matchCost.range().count());
  for (std::size_t x = 0; x < width_; ++x) std::fill_n(start_.At(x), count, std::uint8_t{0});
  barred_.resize(count + lanes_);
  std::fill(barred_.begin(), barred_.end(), kBarred);
  std::fill_n(barred_.begin(), count, std::uint8_t{0});
}

void StripSearch::Run(int first, int end, std::span<std::uint16_t> separations,
                      std::span<std::uint8_t> certainties) {
  Paths* before = &start_;
  for (int y = std::min(matchCost_.height(), end + kLeadIn) - 1; y >= first; --y) {
    Paths& after = y < end ? fromBelow_[static_cast<std::size_t>(y - first)]
                           : outside_[static_cast<std::size_t>(y & 1)];
    StepToRow(y, *before, after);
    before = &after;
  }
  before = &start_;
  for (int y = std::max(0, first - kLeadIn); y < end; ++y) {
    Paths& after = fromAbove_[static_cast<std::size_t>(y & 1)];
    StepToRow(y, *before, after);
    before = &after;
    if (y < first) continue;
    AddMean(after, fromBelow_[static_cast<std::size_t>(y - first)]);
    const std::size_t offset = static_cast<std::size_t>(y) * width_;
    SearchRow(separations.subspan(offset, width_), certainties.subspan(offset, width_));
    PreferHalves(y, separations.subspan(offset, width_));
    WeighByTexture(y, certainties.subspan(offset, width_));
  }
}

void StripSearch::StepToRow(int y, Paths& before, Paths& after) {
  matchCost_.Row(y, kBeyondCost, scratch_, costs_);
  for (std::size_t x = 0; x < width_; ++x) {
    after.LowestAt(x) =
        StepPath<kBetweenRows>(before.At(x), before.LowestAt(x), CostsAt(x), lanes_, after.At(x));
  }
}

void StripSearch::AddMean(Paths& fromAbove, Paths& fromBelow) {
  const std::uint8_t* above = fromAbove.At(0);
  const std::uint8_t* below = fromBelow.At(0);
  for (std::size_t i = 0; i < costs_.size(); i += kByteLanes) {
    const ByteLanes mean = (LoadLanes(above + i) + LoadLanes(below + i)) >> 1;
    StoreLanes(costs_.data() + i, LoadLanes(costs_.data() + i) + mean);
  }
}

void StripSearch::SearchRow(std::span<std::uint16_t> separations,
                            std::span<std::uint8_t> certainties) {
  const std::uint8_t* before = start_.At(0);
  std::uint8_t lowest = 0;
  for (std::size_t x = 0; x < width_; ++x) {
    lowest = StepPath<kAlongRow>(before, lowest, CostsAt(x), lanes_, fromLeft_.At(x));
    before = fromLeft_.At(x);
  }
  before = start_.At(0);
  lowest = 0;
  for (std::size_t x = width_; x-- > 0;) {
    std::uint8_t* fromRight = fromRight_.At(x & 1);
    lowest = StepPath<kAlongRow>(before, lowest, CostsAt(x), lanes_, fromRight);
    before = fromRight;
    certainties[x] = Choose(x, fromRight, separations[x]);
  }
}

void StripSearch::PreferHalves(int y, std::span<std::uint16_t> separations) const {
  for (std::size_t x = 0; x < width_; ++x) {
    if (IsTwiceTheRepeat(matchCost_, static_cast<int>(x), y, separations[x]))
      separations[x] = static_cast<std::uint16_t>(separations[x] / 2);
  }
}

void StripSearch::WeighByTexture(int y, std::span<std::uint8_t> certainties) const {
  constexpr int kReach = 6;
  constexpr int kEnough = (2 * kReach + 1) * MatchCost::kChanceCost / 4;
  const int width = matchCost_.width();
  const auto changeAt = [&](int x) { return x < 2 ? 0 : matchCost_.Difference(y, x - 2, x); };
  int texture = 0;
  for (int x = 0; x < std::min(kReach, width); ++x) texture += changeAt(x);
  for (int x = 0; x < width; ++x) {
    if (x + kReach < width) texture += changeAt(x + kReach);
    if (x - kReach > 0) texture -= changeAt(x - kReach - 1);
    std::uint8_t& certainty = certainties[static_cast<std::size_t>(x)];
    certainty = static_cast<std::uint8_t>(certainty * std::min(texture, kEnough) / kEnough);
  }
}

std::uint8_t StripSearch::Choose(std::size_t x, std::uint8_t* fromRight,
                                 std::uint16_t& separation) {
  const auto pairs = static_cast<std::size_t>(matchCost_.PairsAt(static_cast<int>(x)));
  separation = 0;
  if (pairs == 0) return 0;
  const std::uint8_t* barred =
      barred_.data() + static_cast<std::size_t>(matchCost_.range().count()) - pairs;
  const std::uint8_t* fromLeft = fromLeft_.At(x);
  const std::uint8_t* cost = CostsAt(x);
  std::uint8_t* sum = sums_.data();
  ByteLanes minimum = SameLanes(255);
  for (std::size_t i = 0; i < lanes_; i += kByteLanes) {
    // Both paths hold the cost of the pixel itself.
    const ByteLanes paths = LoadLanes(fromLeft + i) + LoadLanes(fromRight + i);
    const ByteLanes all = Max(paths - LoadLanes(cost + i), LoadLanes(barred + i));
    StoreLanes(sum + i, all);
    minimum = Min(minimum, all);
  }
  const std::uint8_t best = LowestLane(minimum);
  std::size_t choice = Find(sum, best, pairs);
  // The middle of three that are as good.
  if (choice + 2 < pairs && sum[choice + 2] == best) ++choice;
  separation = static_cast<std::uint16_t>(matchCost_.range().smallest + static_cast<int>(choice));
  const std::size_t beside = std::min(choice, std::size_t{2});
  std::fill(sum + choice - beside, sum + std::min(choice + 3, lanes_), kBarred);
  const std::uint8_t other = Lowest(sum, lanes_);
  return Certainty(best, other);
}

}  // namespace plenovia
