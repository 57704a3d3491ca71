// Each kind of kernels against plain code, on random rows.

#include "engine/reveal_kernels.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "engine/match_cost.h"
#include "platform/random.h"
#include "testing/picture_compare.h"

namespace plenovia {
namespace {

// Costs of a row: for each column those of all separations.
using Costs = std::vector<std::vector<int>>;

// The vectors of bytes that the kernels work on; the bytes after the last separation stay out.
std::vector<std::uint8_t> Packed(const Costs& costs, std::size_t lanes) {
  std::vector<std::uint8_t> bytes(costs.size() * lanes, 150);
  for (std::size_t x = 0; x < costs.size(); ++x)
    std::copy(costs[x].begin(), costs[x].end(), bytes.begin() + static_cast<int>(x * lanes));
  return bytes;
}

Costs Unpacked(const std::vector<std::uint8_t>& bytes, std::size_t width, std::size_t count) {
  Costs costs;
  for (std::size_t x = 0; x < width; ++x) {
    const auto from = bytes.begin() + static_cast<int>(x * bytes.size() / width);
    costs.emplace_back(from, from + static_cast<int>(count));
  }
  return costs;
}

std::vector<int> PlainStep(ChangeCost change, const std::vector<int>& before,
                           const std::vector<int>& cost) {
  const int lowest = *std::min_element(before.begin(), before.end());
  std::vector<int> path = cost;
  for (std::size_t i = 0; i < path.size(); ++i) {
    int way = std::min(before[i], lowest + change.byMore);
    if (i > 0) way = std::min(way, before[i - 1] + change.byOne);
    if (i + 1 < path.size()) way = std::min(way, before[i + 1] + change.byOne);
    path[i] += way - lowest;
  }
  return path;
}

// The numbers of the separations with the lowest sum of both paths along the row; of three that are
// as good the middle one.
std::vector<int> PlainChoices(const Costs& costs, const std::uint16_t* pairs) {
  const std::size_t width = costs.size();
  Costs left = costs;
  Costs right = costs;
  for (std::size_t x = 1; x < width; ++x) {
    left[x] = PlainStep(kAlongRow, left[x - 1], costs[x]);
    right[width - 1 - x] = PlainStep(kAlongRow, right[width - x], costs[width - 1 - x]);
  }
  std::vector<int> choices(width, -1);
  for (std::size_t x = 0; x < width; ++x) {
    std::vector<int> sum = left[x];
    for (std::size_t i = 0; i < sum.size(); ++i) sum[i] += right[x][i] - costs[x][i];
    sum.resize(pairs[x]);
    if (sum.empty()) continue;
    const auto best = std::min_element(sum.begin(), sum.end());
    const bool middle = sum.end() - best > 2 && best[2] == *best;
    choices[x] = static_cast<int>(best - sum.begin()) + (middle ? 1 : 0);
  }
  return choices;
}

// The columns whose row repeats at half their separation, or which lie near the ends of the row.
std::vector<std::uint16_t> PlainHalves(const MatchCost& cost, const PairRow& row,
                                       const std::vector<std::uint16_t>& separations, int most) {
  std::vector<std::uint16_t> columns;
  for (int x = 0; x < cost.width(); ++x) {
    const int half = separations[static_cast<std::size_t>(x)] / 2;
    if (separations[static_cast<std::size_t>(x)] % 2 != 0 || half < cost.range().smallest) continue;
    const int left = x - 4 - (row.centre ? half / 2 : half);
    int sum = 0;
    for (int u = x - 4; u <= x + 4; u += 2) sum += cost.PairCost(u, 0, half);
    if (left < 0 || left + half + 8 >= cost.width() || sum <= most)
      columns.push_back(static_cast<std::uint16_t>(x));
  }
  return columns;
}

class KernelCase {
 public:
  explicit KernelCase(Random& random)
      : picture_(RandomPicture(random, random.Int(1, 130), 1, random.Int(2, 30))) {
    if (random.Int(0, 1) != 0) picture_.SetPalette(Palette::Grays(picture_.palette().size()));
    range_.smallest = random.Int(1, 40);
    range_.largest = range_.smallest + random.Int(0, 2) * 64 + random.Int(0, 64);
    const MatchCost cost(picture_, range_,
                         random.Int(0, 1) != 0 ? RevealAnchor::kCentre : RevealAnchor::kRight);
    matchCost.emplace_back(cost);
    row = matchCost.front().Row(0, scratch_);
    for (int x = 0; x < picture_.width(); ++x) {
      auto& of = pairCosts.emplace_back();
      for (int s = range_.smallest; s <= range_.largest; ++s)
        of.push_back(matchCost.front().PairCost(x, 0, s));
    }
  }
  // Random path costs.
  Costs Paths(Random& random) const {
    Costs paths = pairCosts;
    for (auto& of : paths) {
      for (int& cost : of) cost = random.Int(0, kHighestCost + kBetweenRows.byMore);
    }
    return paths;
  }

  PairRow row;
  Costs pairCosts;
  std::vector<MatchCost> matchCost;

 private:
  IndexedImage picture_;
  SeparationRange range_;
  MatchCost::Scratch scratch_;
};

TEST(RevealKernels, AllKindsDoWhatPlainCodeDoes) {
  Random random(6);
  for (int round = 0; round < 60; ++round) {
    const KernelCase some(random);
    const PairRow& row = some.row;
    const Costs above = some.Paths(random);
    const Costs below = some.Paths(random);
    Costs after = above;
    Costs joined = above;
    std::vector<std::uint8_t> lowest;
    std::vector<std::uint8_t> lowestAfter;
    for (std::size_t x = 0; x < row.width; ++x) {
      after[x] = PlainStep(kBetweenRows, above[x], some.pairCosts[x]);
      for (std::size_t i = 0; i < row.count; ++i)
        joined[x][i] = some.pairCosts[x][i] + (after[x][i] + below[x][i]) / 2;
      const auto least = [](const auto& of) {
        return static_cast<std::uint8_t>(*std::min_element(of.begin(), of.end()));
      };
      lowest.push_back(least(above[x]));
      lowestAfter.push_back(least(after[x]));
    }
    const std::vector<int> choices = PlainChoices(joined, row.pairs);
    const std::size_t columns = std::min<std::size_t>(12, row.width);
    std::vector<std::uint8_t> firstCertainties;
    for (const RevealKernels* kernels : UsableRevealKernels()) {
      const std::size_t lanes = kernels->Lanes(row.count);
      std::vector<std::uint8_t> path = Packed(above, lanes);
      std::vector<std::uint8_t> least = lowest;
      kernels->stepRow(row, {path.data(), least.data()}, {path.data(), least.data()});
      EXPECT_EQ(Unpacked(path, row.width, row.count), after);
      EXPECT_EQ(least, lowestAfter);

      path = Packed(above, lanes);
      least = lowest;
      std::vector<std::uint8_t> join = Packed(below, lanes);
      kernels->joinRow(row, {path.data(), least.data()}, join.data());
      EXPECT_EQ(Unpacked(join, row.width, row.count), joined);

      std::vector<std::uint16_t> separations(row.width);
      std::vector<std::uint8_t> certainties(row.width);
      path.resize(path.size() + row.width);
      kernels->searchRow(row, join.data(), path.data(), separations.data(), certainties.data());
      for (std::size_t x = 0; x < row.width; ++x) {
        ASSERT_EQ(int{separations[x]},
                  choices[x] < 0 ? 0 : static_cast<int>(row.smallest) + choices[x])
            << x << " of " << row.width << ", " << row.count << " separations";
      }
      if (firstCertainties.empty()) firstCertainties = certainties;
      EXPECT_EQ(certainties, firstCertainties);

      for (auto& separation : separations)
        separation = static_cast<std::uint16_t>(separation + separation % 2);
      std::vector<std::uint16_t> halves(row.width);
      halves.resize(kernels->findHalves(row, separations.data(), 40, halves.data()));
      EXPECT_EQ(halves, PlainHalves(some.matchCost.front(), row, separations, 40));

      std::vector<std::uint8_t> sums(lanes);
      kernels->addCosts(row, row.width - columns, columns, sums.data());
      for (std::size_t i = 0; i < row.pairs[row.width - columns] && !row.centre; ++i) {
        int sum = 0;
        for (std::size_t x = row.width - columns; x < row.width; ++x)
          sum += std::min(some.pairCosts[x][i], 20);
        ASSERT_EQ(int{sums[i]}, sum);
      }
    }
  }
}

TEST(RevealKernels, WideVectorsAreTakenWhereSeparationsFillThem) {
  for (std::size_t count = 1; count <= 200; ++count)
    EXPECT_LT(FastestRevealKernels(count).Lanes(count), count + 32);
}

}  // namespace
}  // namespace plenovia
