// The search for the best separations in a strip of rows.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "engine/byte_lanes.h"
#include "engine/match_cost.h"
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
  // Path costs of `width` pixels, with room for the bytes around them that StepPath reads.
  class Paths {
   public:
    Paths(const MatchCost& matchCost, std::size_t width);
    std::uint8_t* At(std::size_t x) { return costs_.data() + kByteLanes + x * lanes_; }
    std::uint8_t& LowestAt(std::size_t x) { return lowest_[x]; }

   private:
    std::size_t lanes_;
    ByteBuffer costs_;
    ByteBuffer lowest_;
  };

  std::uint8_t* CostsAt(std::size_t x) { return costs_.data() + x * lanes_; }
  // Loads the costs of row `y` and steps all vertical paths there.
  void StepToRow(int y, Paths& before, Paths& after);
  // Turns the loaded costs into those that the row is searched with.
  void AddMean(Paths& fromAbove, Paths& fromBelow);
  void SearchRow(std::span<std::uint16_t> separations, std::span<std::uint8_t> certainties);
  // Corrects separations of row `y` that are twice what the row repeats at.
  void PreferHalves(int y, std::span<std::uint16_t> separations) const;
  // Lowers certainties where the row looks the same everywhere, so that any separation would fit.
  void WeighByTexture(int y, std::span<std::uint8_t> certainties) const;
  // Chooses the separation with the lowest sum of path costs; returns how certain it is.
  std::uint8_t Choose(std::size_t x, std::uint8_t* fromRight, std::uint16_t& separation);

  const MatchCost& matchCost_;
  std::size_t width_;
  std::size_t lanes_;
  MatchCost::Scratch scratch_;
  ByteBuffer costs_;              // of one row
  Paths start_;                   // where every path begins
  Paths fromLeft_;                // one row
  Paths fromRight_;               // two pixels, in turn
  std::vector<Paths> fromAbove_;  // two rows, in turn
  std::vector<Paths> outside_;    // two rows below the strip, in turn
  std::vector<Paths> fromBelow_;  // all rows of the strip
  ByteBuffer sums_;               // of one pixel
  ByteBuffer barred_;             // 0 for separations, 255 from then on
};

}  // namespace plenovia
