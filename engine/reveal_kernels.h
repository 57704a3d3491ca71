// The inner loops of Reveal, compiled for several kinds of vector registers.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace plenovia {

inline constexpr std::uint8_t kChanceCost = 12;   // of two pixels taken at random, on average
inline constexpr std::uint8_t kHighestCost = 24;  // a pair that differs more costs no more

// What it costs when the separations of neighbours differ.
struct ChangeCost {
  std::uint8_t byOne;
  std::uint8_t byMore;
};

// Between rows, over the costs of pairs.
inline constexpr ChangeCost kBetweenRows{2, 24};
// Along a row, over those costs and the mean of the paths from above and below.
inline constexpr ChangeCost kAlongRow{4, 48};

// A row as its pairs see it. The cost of a pair is the sum of the differences of its channels, at
// most kHighestCost. The pair of column x and separation number i compares left[(width - 1 - x) +
// i] with right[x]; with the centre as anchor it is left[2 * (width - 1 - x) + i] with right[2 * x
// + i]. Channels follow each other at a distance of `stride` bytes.
struct PairRow {
  const std::uint8_t* pixels;  // in their order
  const std::uint8_t* left;
  const std::uint8_t* right;
  std::size_t stride;
  std::size_t channels;  // 1 or 3
  bool centre;
  std::size_t width;           // pixels
  std::size_t smallest;        // separation, that of number 0
  std::size_t count;           // separations
  const std::uint16_t* pairs;  // for each column, how many of them make a pair inside the row
};

// Of each pixel of a row, the costs of the cheapest paths that lead to it, one for each separation,
// and the lowest of these. A path that begins has costs of 0.
struct PathRow {
  std::uint8_t* costs;
  std::uint8_t* lowest;
};

inline constexpr std::size_t kMostByteLanes = 64;  // of any kind

// Costs and paths of a pixel lie in Lanes(count) bytes. Those after the last separation are for
// padding. All kinds give the same results.
struct RevealKernels {
  std::size_t byteLanes;

  // Adds up the costs of the columns [x, x + columns) for each separation, at most 12 columns; what
  // costs more than 20 counts as 20. Pairs that reach beyond the row have any cost.
  void (*addCosts)(const PairRow& row, std::size_t x, std::size_t columns, std::uint8_t* sums);

  // Takes the vertical paths from the row `before` to the row `after`, which may be the same.
  void (*stepRow)(const PairRow& row, const PathRow& before, const PathRow& after);

  // The same for paths from above in `paths`. `below` holds the costs of the paths from below and
  // gets what the row is searched with: the costs of its pairs and the mean of both paths.
  void (*joinRow)(const PairRow& row, const PathRow& paths, std::uint8_t* below);

  // Chooses the separations of a row by the paths along it, and tells how certain each is; both are
  // 0 for columns without any pair. `room` has Lanes(count) + 1 bytes for each column.
  void (*searchRow)(const PairRow& row, const std::uint8_t* costs, std::uint8_t* room,
                    std::uint16_t* separations, std::uint8_t* certainties);

  // Finds the columns whose row might also repeat at half their separation, if that is one of the
  // separations: the costs of the pairs there, at x - 4, x - 2, .. x + 4, add up to at most `most`.
  // Near the ends of the row any column counts. Returns how many there are in `columns`, which has
  // room for the row.
  std::size_t (*findHalves)(const PairRow& row, const std::uint16_t* separations, int most,
                            std::uint16_t* columns);

  std::size_t Lanes(std::size_t count) const {
    return (count + byteLanes - 1) / byteLanes * byteLanes;
  }
};

// The kinds that this processor can run, the fastest last.
std::span<const RevealKernels* const> UsableRevealKernels();

// The one to take for `count` separations: the widest that needs no more room than one of 32 bytes.
const RevealKernels& FastestRevealKernels(std::size_t count);

}  // namespace plenovia
