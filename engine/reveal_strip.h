// The search for the best separations in a strip of rows.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "engine/match_cost.h"
#include "engine/reveal_kernels.h"
#include "platform/pixel_buffer.h"

namespace plenovia {

// Finds the separations of some rows. Along each row they are chosen together, so that the costs of
// the pairs and of the changes between neighbours are smallest; the rows above and below have a say
// through the cheapest paths that lead to the row from there. These begin a fixed number of rows
// outside the strip, so strips can be worked on in any order. (A tree for each row, as in Bleyer
// and Gelautz, "Simple but effective tree structures for dynamic programming-based stereo
// matching", 2008.)
class StripSearch {
 public:
  // `matchCost` must outlive this object; `rows` is the greatest height of a strip.
  StripSearch(const MatchCost& matchCost, int rows);

  // Searches the rows [first, end) of the picture. `separations` and `certainties` have an entry a
  // pixel of the whole picture.
  void Run(int first, int end, std::span<std::uint16_t> separations,
           std::span<std::uint8_t> certainties);

 private:
  PathRow Outside() { return {outside_.data(), lowest_.data()}; }
  // Lets all vertical paths begin before the next row.
  void BeginPaths();
  // Takes the paths from below to all rows of the strip.
  void StepFromBelow(int first, int end);
  // The costs of the paths from below in a row of the strip.
  std::uint8_t* BelowAt(int row) {
    return fromBelow_.data() + static_cast<std::size_t>(row) * outside_.size();
  }
  // Corrects separations of row `y` that are twice what the row repeats at.
  void PreferHalves(int y, const PairRow& row, std::span<std::uint16_t> separations);
  // Lowers certainties where the row looks the same everywhere, so that any separation would fit.
  void WeighByTexture(const PairRow& row, std::span<std::uint8_t> certainties);

  const MatchCost& matchCost_;
  const RevealKernels& kernels_;
  MatchCost::Scratch scratch_;
  ByteBuffer outside_;                 // path costs of one row
  ByteBuffer lowest_;                  // and their lowest
  ByteBuffer alongRow_;                // room for the paths along one row
  ByteBuffer fromBelow_;               // the path costs of all rows of the strip
  ByteBuffer changes_;                 // along one row
  std::vector<std::uint16_t> halves_;  // columns
};

}  // namespace plenovia
