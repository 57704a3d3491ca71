// How badly the two pixels of each possible pair of a row match.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <vector>

#include "engine/reveal_anchor.h"
#include "engine/reveal_kernels.h"
#include "platform/indexed_image.h"

namespace plenovia {

// Separations in pixels, both included; 1 <= smallest <= largest.
struct SeparationRange {
  int smallest = 1;
  int largest = 1;
  int count() const { return largest - smallest + 1; }
};

// The costs of a picture's pairs: the differences of red, green and blue, added up and scaled by
// the picture's contrast, so that two pixels taken at random cost kChanceCost on average. Const
// calls may run on several threads at once, each with a scratch of its own.
class MatchCost {
 public:
  // The picture must outlive this object.
  MatchCost(const IndexedImage& picture, SeparationRange range, RevealAnchor anchor);

  const SeparationRange& range() const { return range_; }
  RevealAnchor anchor() const { return anchor_; }
  int width() const { return picture_.width(); }
  int height() const { return picture_.height(); }

  // The scaled pixels of a row in three orders, one channel after the other, and what the row
  // gives.
  struct Scratch {
    std::vector<std::uint8_t> pixels;  // as they are
    std::vector<std::uint8_t> left;    // as the left and
    std::vector<std::uint8_t> right;   // right pixels of pairs
  };

  // Row `y` for the kernels. It refers to the scratch and to this object.
  PairRow Row(int y, Scratch& scratch) const;

  // The cost of two pixels of row `y` as a pair; both columns must lie in the picture.
  int Difference(int y, int left, int right) const {
    const auto row = picture_.Row(y);
    int sum = 0;
    for (const auto& channel : channels_) {
      sum += std::abs(channel[row[static_cast<std::size_t>(left)]] -
                      channel[row[static_cast<std::size_t>(right)]]);
    }
    return std::min<int>(sum, kHighestCost);
  }
  // The cost that a column has for one separation, which may be any from 1 on.
  int PairCost(int x, int y, int separation) const;

  // How many of the separations, from the smallest on, make a pair inside the row for a column.
  int PairsAt(int x) const;

 private:
  const IndexedImage& picture_;
  SeparationRange range_;
  RevealAnchor anchor_;
  std::size_t stride_;                                   // bytes of a channel in a scratch
  std::vector<std::uint16_t> pairs_;                     // of each column
  std::vector<std::array<std::uint8_t, 256>> channels_;  // one when the picture is gray, or three
};

}  // namespace plenovia
