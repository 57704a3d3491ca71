// How badly the two pixels of each possible pair of a row match.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <span>
#include <vector>

#include "platform/indexed_image.h"

namespace plenovia {

// Which column a matching pair of pixels (x - s, x) speaks for.
enum class RevealAnchor {
  kRight,   // x: the column whose depth made the pair in the left-to-right and McMahon methods
  kCentre,  // the middle between the two, rounded up: the column in the Feucht method
};

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
  static constexpr std::uint8_t kChanceCost = 12;
  static constexpr std::uint8_t kHighestCost = 24;  // a pair that differs more costs no more

  // The picture must outlive this object.
  MatchCost(const IndexedImage& picture, SeparationRange range, RevealAnchor anchor);

  const SeparationRange& range() const { return range_; }
  int width() const { return picture_.width(); }
  int height() const { return picture_.height(); }

  // Costs of a pixel lie in so many bytes, a multiple of 16 and more than range().count().
  std::size_t lanes() const { return lanes_; }

  // A row as the pixels of pairs see it, one channel after the other.
  struct Scratch {
    std::vector<std::uint8_t> left;
    std::vector<std::uint8_t> right;
  };

  // Sets costs[x * lanes() + i] for each column x of row `y` to the cost of separation
  // range().smallest + i. A pair that reaches beyond the row costs kChanceCost, and the bytes after
  // the last separation hold `padding`.
  void Row(int y, std::uint8_t padding, Scratch& scratch, std::span<std::uint8_t> costs) const;

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
  // The cost that Row gives a column for one separation, which may be any from 1 on.
  int PairCost(int x, int y, int separation) const;

  // How many of the separations, from the smallest on, make a pair inside the row for a column.
  int PairsAt(int x) const;

 private:
  void Spread(std::span<const std::uint8_t> row, Scratch& scratch) const;
  template <std::size_t kChannels, bool kCentre>
  void Compare(const Scratch& scratch, std::span<std::uint8_t> costs) const;

  const IndexedImage& picture_;
  SeparationRange range_;
  RevealAnchor anchor_;
  std::size_t lanes_;
  std::size_t stride_;                                   // bytes of a channel in a scratch
  std::vector<std::array<std::uint8_t, 256>> channels_;  // one when the picture is gray, or three
};

}  // namespace plenovia
