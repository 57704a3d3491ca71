// The inner loops of Reveal over vectors of bytes. A source file that includes this has a copy for
// the processor that it is compiled for. No function of the standard library is called here: the
// linker might then take that copy for the whole program.
//
// The method is dynamic programming over separations along one direction: the cheapest way to a
// pixel's separation, where a change of separation between neighbours costs something too. After
// Hirschmueller, "Stereo processing by semiglobal matching and mutual information", 2008.
#pragma once

#include <cstddef>
#include <cstdint>

#include "engine/byte_lanes.h"
#include "engine/reveal_kernels.h"

#define PLENOVIA_INLINE __attribute__((always_inline))

namespace plenovia {
// Each source file that includes this has its own copy, and that is its purpose.
// NOLINTBEGIN(misc-definitions-in-headers)
namespace {

// The highest path costs: that of a pixel and of a change before it.
constexpr std::uint8_t kHighestBetweenRows = kHighestCost + kBetweenRows.byMore;
constexpr std::uint8_t kHighestAlongRow = kHighestCost + kHighestBetweenRows + kAlongRow.byMore;
static_assert(2 * kHighestAlongRow < 255, "sums of two path costs must fit into a byte");

// The cost of a pair after the last separation: so high that no path goes through it.
constexpr std::uint8_t kPaddingCost = 64;
static_assert(2 * kPaddingCost > kHighestCost + kHighestBetweenRows + kAlongRow.byMore);
static_assert(2 * kPaddingCost + kBetweenRows.byMore + kAlongRow.byMore < 255);

constexpr std::size_t kMostLanes = 1024 + 64;

// Bytes of which the first kMostLanes are equal, so are the `middle` ones after them, and the rest.
// A vector read from the right place tells apart the lanes before and after one.
struct Steps {
  alignas(64) std::uint8_t bytes[2 * kMostLanes] = {};
  constexpr Steps(std::uint8_t first, std::size_t middle, std::uint8_t between, std::uint8_t last) {
    for (std::size_t i = 0; i < 2 * kMostLanes; ++i)
      bytes[i] = i < kMostLanes ? first : i < kMostLanes + middle ? between : last;
  }
  // For lane 0 of a pixel: the bytes such that the first step lies at lane `at`.
  const std::uint8_t* From(std::size_t at) const { return bytes + kMostLanes - at; }
};
constexpr Steps kBeyond(0, 0, 0, 255);
constexpr Steps kCostsBeyond(kChanceCost, 0, 0, kPaddingCost);
constexpr Steps kBeside(0, 5, 255, 0);

// The costs of a column's pairs.
template <std::size_t kChannels, bool kCentre>
class PairCosts {
 public:
  PLENOVIA_INLINE PairCosts(const PairRow& row, std::size_t x)
      : left_(row.left + (row.width - 1 - x) * (kCentre ? 2 : 1)),
        right_(row.right + x * (kCentre ? 2 : 1)),
        stride_(row.stride) {}

  PLENOVIA_INLINE ByteLanes At(std::size_t i) const {
    ByteLanes sum{};
    for (std::size_t c = 0; c < kChannels; ++c) {
      const std::uint8_t* other = right_ + c * stride_;
      const ByteLanes pixels = kCentre ? LoadLanes(other + i) : SameLanes(*other);
      const ByteLanes difference = AbsDifference(LoadLanes(left_ + c * stride_ + i), pixels);
      sum += Min(difference, SameLanes(kHighestCost));
    }
    return kChannels == 1 ? sum : Min(sum, SameLanes(kHighestCost));
  }

 private:
  const std::uint8_t* left_;
  const std::uint8_t* right_;
  std::size_t stride_;
};

// How many vectors a pixel's lanes are: known to the compiler, or with 0 not.
template <std::size_t kVectors>
struct Vectors {
  std::size_t count;
  // It stands for its number.
  // NOLINTNEXTLINE(google-explicit-constructor)
  constexpr operator std::size_t() const { return kVectors == 0 ? count : kVectors; }
};

// The path costs of the next pixel on a path. `before(v)` are vector v of those of the pixel before
// it, `lowest` their minimum, `cost(v)` the pixel's own costs; `use(v, path)` takes the path costs.
// Returns their minimum.
template <ChangeCost kChange, std::size_t kVectors, class Before, class Cost, class Use>
PLENOVIA_INLINE inline ByteLanes StepPath(Vectors<kVectors> vectors, const Before& before,
                                          ByteLanes lowest, const Cost& cost, const Use& use) {
  const ByteLanes outside = SameLanes(200);
  const ByteLanes jump = SameLanes(kChange.byMore);
  ByteLanes minimum{};
  ByteLanes below = outside;
  ByteLanes same = before(0);
  for (std::size_t v = 0; v < vectors; ++v) {
    const ByteLanes above = v + 1 < vectors ? before(v + 1) : outside;
    const ByteLanes beside = Min(MovedUp(below, same), MovedDown(same, above)) + kChange.byOne;
    const ByteLanes path = cost(v) + Min(Min(same, beside) - lowest, jump);
    use(v, path);
    minimum = v == 0 ? path : Min(minimum, path);
    below = same;
    same = above;
  }
  return LowestLane(minimum);
}

template <bool kJoin, std::size_t kChannels, bool kCentre, std::size_t kVectors>
void StepColumns(const PairRow& row, Vectors<kVectors> vectors, const PathRow& before,
                 const PathRow& after, std::uint8_t* join) {
  const std::size_t lanes = vectors * kByteLanes;
  for (std::size_t x = 0; x < row.width; ++x) {
    const PairCosts<kChannels, kCentre> pairCosts(row, x);
    std::uint8_t* path = after.costs + x * lanes;
    std::uint8_t* joined = join + x * lanes;
    const std::uint8_t* from = before.costs + x * lanes;
    const auto step = [&](const auto& cost) PLENOVIA_INLINE {
      const ByteLanes lowest = StepPath<kBetweenRows>(
          vectors, [&](std::size_t v) PLENOVIA_INLINE { return LoadLanes(from + v * kByteLanes); },
          SameLanes(before.lowest[x]), cost,
          [&](std::size_t v, ByteLanes costs) PLENOVIA_INLINE {
            StoreLanes(path + v * kByteLanes, costs);
            if (!kJoin) return;
            std::uint8_t* both = joined + v * kByteLanes;
            StoreLanes(both, cost(v) + ((costs + LoadLanes(both)) >> 1));
          });
      after.lowest[x] = lowest[0];
    };
    const std::size_t pairs = row.pairs[x];
    if (pairs == lanes) {
      step([&](std::size_t v) PLENOVIA_INLINE { return pairCosts.At(v * kByteLanes); });
    } else {
      const std::uint8_t* beyond = kBeyond.From(pairs);
      const std::uint8_t* costsBeyond = kCostsBeyond.From(row.count);
      step([&](std::size_t v) PLENOVIA_INLINE {
        const std::size_t i = v * kByteLanes;
        return LoadLanes(beyond + i) != 0 ? LoadLanes(costsBeyond + i) : pairCosts.At(i);
      });
    }
  }
}

// How certain choices are: by how much the sum of each is below the lowest one of separations that
// are not beside it, in parts of that one; less where the lead is small in itself.
inline void Certainties(std::size_t width, const std::uint8_t* best, const std::uint8_t* other,
                        std::uint8_t* certainties) {
  constexpr int kClearLead = 3 * kChanceCost;
  for (std::size_t x = 0; x < width; ++x) {
    const int lead = other[x] == 255 ? 0 : other[x] - best[x];
    // Exact: a float holds these numbers, and quotients that are not whole are far from it.
    const float part = static_cast<float>(255 * lead) / static_cast<float>(other[x] + (lead == 0));
    const int clear = lead < kClearLead ? lead : kClearLead;
    certainties[x] = static_cast<std::uint8_t>(static_cast<int>(part) * clear / kClearLead);
  }
}

// Searches a row from both ends at once, as two paths keep a processor busier than one: each half
// keeps the path that comes to it first, and chooses when the other one comes.
template <std::size_t kVectors>
class RowSearch {
 public:
  RowSearch(const PairRow& row, Vectors<kVectors> vectors, const std::uint8_t* costs,
            std::uint8_t* paths, std::uint16_t* separations)
      : row_(row),
        vectors_(vectors),
        lanes_(vectors * kByteLanes),
        costs_(costs),
        paths_(paths),
        separations_(separations) {}

  // Of each column also the lowest sum of paths, and the lowest that is not beside it.
  void Run(std::uint8_t* best, std::uint8_t* other) const {
    const std::size_t width = row_.width;
    const std::size_t middle = width / 2;
    ByteLanes sums[kHeld];
    Way fromLeft;
    Way fromRight;
    fromLeft.lowest = fromRight.lowest = ByteLanes{};
    for (std::size_t v = 0; v < vectors_; ++v) fromLeft.costs[v] = fromRight.costs[v] = ByteLanes{};
    const auto keep = [&](Way& way, std::size_t x) PLENOVIA_INLINE {
      Step(way, x);
      for (std::size_t v = 0; v < vectors_; ++v)
        StoreLanes(paths_ + x * lanes_ + v * kByteLanes, way.costs[v]);
    };
    const auto choose = [&](Way& way, std::size_t x) PLENOVIA_INLINE {
      Step(way, x);
      Choose(way, x, sums, best[x], other[x]);
    };
    for (std::size_t k = 0; k < middle; ++k) {
      keep(fromLeft, k);
      keep(fromRight, width - 1 - k);
    }
    if (width % 2 != 0) keep(fromRight, middle);
    for (std::size_t k = 0; k < middle; ++k) {
      choose(fromLeft, middle + k);
      choose(fromRight, middle - 1 - k);
    }
    if (width % 2 != 0) choose(fromLeft, width - 1);
  }

 private:
  static constexpr std::size_t kHeld = kVectors == 0 ? kMostLanes / kByteLanes : kVectors;
  // The path costs of the last pixel.
  struct Way {
    ByteLanes costs[kHeld];
    ByteLanes lowest;
  };

  PLENOVIA_INLINE void Step(Way& way, std::size_t x) const {
    const std::uint8_t* costs = costs_ + x * lanes_;
    way.lowest = StepPath<kAlongRow>(
        vectors_, [&](std::size_t v) PLENOVIA_INLINE { return way.costs[v]; }, way.lowest,
        [&](std::size_t v) PLENOVIA_INLINE { return LoadLanes(costs + v * kByteLanes); },
        [&](std::size_t v, ByteLanes path) PLENOVIA_INLINE { way.costs[v] = path; });
  }

  PLENOVIA_INLINE void Choose(const Way& way, std::size_t x, ByteLanes* sums, std::uint8_t& best,
                              std::uint8_t& other) const {
    const std::size_t pairs = row_.pairs[x];
    const std::uint8_t* path = paths_ + x * lanes_;
    const std::uint8_t* cost = costs_ + x * lanes_;
    const std::uint8_t* beyond = kBeyond.From(pairs);
    ByteLanes minimum{};
    for (std::size_t v = 0; v < vectors_; ++v) {
      const std::size_t i = v * kByteLanes;
      // Both paths hold the cost of the pixel itself.
      const ByteLanes both = way.costs[v] + LoadLanes(path + i) - LoadLanes(cost + i);
      sums[v] = both | LoadLanes(beyond + i);
      minimum = v == 0 ? sums[v] : Min(minimum, sums[v]);
    }
    const ByteLanes lowest = LowestLane(minimum);
    const std::size_t choice = MiddleOf(sums, lowest, pairs);
    const std::uint8_t* beside = kBeside.From(choice) + 2;
    for (std::size_t v = 0; v < vectors_; ++v) {
      const ByteLanes others = sums[v] | LoadLanes(beside + v * kByteLanes);
      minimum = v == 0 ? others : Min(minimum, others);
    }
    separations_[x] = static_cast<std::uint16_t>(pairs == 0 ? 0 : row_.smallest + choice);
    best = lowest[0];
    other = LowestLane(minimum)[0];
  }

  // The first lane whose sum is the lowest, or the middle one of three that are as good.
  PLENOVIA_INLINE std::size_t MiddleOf(const ByteLanes* sums, ByteLanes lowest,
                                       std::size_t pairs) const {
    if constexpr (kVectors != 0 && kVectors * kByteLanes <= 64) {
      std::uint64_t equal = 0;
      for (std::size_t v = 0; v < vectors_; ++v)
        equal |= EqualLanes(sums[v], lowest) << (v * kByteLanes);
      const auto first = static_cast<std::size_t>(__builtin_ctzll(equal));
      return first + (equal >> first >> 2 & 1);
    } else {
      std::size_t first = 0;
      std::uint64_t equal = EqualLanes(sums[0], lowest);
      for (std::size_t v = 0; equal == 0; equal = EqualLanes(sums[v], lowest)) {
        ++v;
        first += kByteLanes;
      }
      first += static_cast<std::size_t>(__builtin_ctzll(equal));
      const auto* bytes = reinterpret_cast<const std::uint8_t*>(sums);
      return first + (first + 2 < pairs && bytes[first + 2] == lowest[0] ? 1 : 0);
    }
  }

  const PairRow& row_;
  Vectors<kVectors> vectors_;
  std::size_t lanes_;
  const std::uint8_t* costs_;
  std::uint8_t* paths_;
  std::uint16_t* separations_;
};

// Calls with the number of vectors, known to the compiler where it is small.
template <class Call>
void WithVectors(std::size_t count, const Call& call) {
  const std::size_t vectors = (count + kByteLanes - 1) / kByteLanes;
  switch (vectors) {
    case 1:
      return call(Vectors<1>{1});
    case 2:
      return call(Vectors<2>{2});
    case 3:
      return call(Vectors<3>{3});
    case 4:
      return call(Vectors<4>{4});
    default:
      return call(Vectors<0>{vectors});
  }
}

template <bool kJoin>
void StepAnyRow(const PairRow& row, const PathRow& before, const PathRow& after,
                std::uint8_t* join) {
  WithVectors(row.count, [&](auto vectors) {
    if (row.channels == 1) {
      row.centre ? StepColumns<kJoin, 1, true>(row, vectors, before, after, join)
                 : StepColumns<kJoin, 1, false>(row, vectors, before, after, join);
    } else {
      row.centre ? StepColumns<kJoin, 3, true>(row, vectors, before, after, join)
                 : StepColumns<kJoin, 3, false>(row, vectors, before, after, join);
    }
  });
}

template <std::size_t kChannels, bool kCentre>
void AddColumns(const PairRow& row, std::size_t x, std::size_t columns, std::uint8_t* sums) {
  for (std::size_t i = 0; i < row.count; i += kByteLanes) {
    ByteLanes sum{};
    for (std::size_t j = 0; j < columns; ++j)
      sum += Min(PairCosts<kChannels, kCentre>(row, x + j).At(i), SameLanes(20));
    StoreLanes(sums + i, sum);
  }
}

void AddCosts(const PairRow& row, std::size_t x, std::size_t columns, std::uint8_t* sums) {
  if (row.channels == 1) {
    row.centre ? AddColumns<1, true>(row, x, columns, sums)
               : AddColumns<1, false>(row, x, columns, sums);
  } else {
    row.centre ? AddColumns<3, true>(row, x, columns, sums)
               : AddColumns<3, false>(row, x, columns, sums);
  }
}

void StepRow(const PairRow& row, const PathRow& before, const PathRow& after) {
  StepAnyRow<false>(row, before, after, after.costs);
}

void JoinRow(const PairRow& row, const PathRow& paths, std::uint8_t* below) {
  StepAnyRow<true>(row, paths, paths, below);
}

void SearchRow(const PairRow& row, const std::uint8_t* costs, std::uint8_t* paths,
               std::uint16_t* separations, std::uint8_t* certainties) {
  WithVectors(row.count, [&](auto vectors) {
    std::uint8_t* other = paths + row.width * vectors * kByteLanes;
    RowSearch(row, vectors, costs, paths, separations).Run(certainties, other);
    Certainties(row.width, certainties, other, certainties);
  });
}

// The sum of the costs of five pairs with a distance of 2 in between, given the left and the right
// pixel of the first one.
inline int AddFivePairs(const PairRow& row, const std::uint8_t* left, const std::uint8_t* right) {
#if defined(__SSE2__)
  const __m128i highest = _mm_set1_epi8(kHighestCost);
  __m128i sum = _mm_setzero_si128();
  for (std::size_t c = 0; c < row.channels; ++c, left += row.stride, right += row.stride) {
    const __m128i a = _mm_loadu_si128(reinterpret_cast<const __m128i*>(left));
    const __m128i b = _mm_loadu_si128(reinterpret_cast<const __m128i*>(right));
    sum = _mm_adds_epu8(sum, _mm_sub_epi8(_mm_max_epu8(a, b), _mm_min_epu8(a, b)));
  }
  const __m128i five =
      _mm_and_si128(_mm_min_epu8(sum, highest), _mm_set_epi64x(255, 0xff00ff00ff00ff));
  const __m128i halves = _mm_sad_epu8(five, _mm_setzero_si128());
  return _mm_cvtsi128_si32(halves) + _mm_extract_epi16(halves, 4);
#else
  int sum = 0;
  for (std::size_t u = 0; u < 10; u += 2) {
    int difference = 0;
    for (std::size_t c = 0; c < row.channels; ++c) {
      const int a = left[c * row.stride + u];
      const int b = right[c * row.stride + u];
      difference += a < b ? b - a : a - b;
    }
    sum += difference < kHighestCost ? difference : kHighestCost;
  }
  return sum;
#endif
}

std::size_t FindHalves(const PairRow& row, const std::uint16_t* separations, int most,
                       std::uint16_t* columns) {
  std::size_t found = 0;
  for (std::size_t x = 0; x < row.width; ++x) {
    const std::size_t half = separations[x] / 2;
    if (separations[x] % 2 != 0 || half < row.smallest) continue;
    const std::size_t back = 4 + (row.centre ? half / 2 : half);
    // A column near the ends of the row looks at the row's first pixels, and is named anyway.
    const bool inside = x >= back && x + 4 + half + 4 < row.width + back;
    const std::uint8_t* left = row.pixels + (inside ? x - back : 0);
    const bool same = AddFivePairs(row, left, left + half) <= most;
    columns[found] = static_cast<std::uint16_t>(x);
    found += same | !inside;
  }
  return found;
}

constexpr RevealKernels kVectorRevealKernels{kByteLanes, AddCosts,  StepRow,
                                             JoinRow,    SearchRow, FindHalves};

}  // namespace
// NOLINTEND(misc-definitions-in-headers)
}  // namespace plenovia
