// Blends of neighbouring pixels of an indexed picture, as entries of its palette.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "platform/indexed_image.h"
#include "platform/palette.h"

namespace plenovia {

// The entries that the pixels of a picture use keep number and colour. The others take the blends
// of pixels that are neighbours in a row of it, those first that lie farthest from all entries and
// occur most often; every other blend is the nearest entry. Entries that stand for a colour drawn
// over stereograms stay too.
class ColourBlends {
 public:
  static constexpr int kSteps = 16;  // from a pixel to its right neighbour

  explicit ColourBlends(const IndexedImage& picture);

  // 256 entries.
  const Palette& palette() const { return palette_; }
  // By Index(): the entry `step` steps, 0..kSteps-1, from a pixel of index `left` to one of index
  // `right`. The two stand side by side in the picture, at the end and the beginning of a row, or
  // are equal.
  const std::uint8_t* entries() const { return entries_.data(); }
  static std::size_t Index(std::uint8_t left, std::uint8_t right, unsigned step) {
    return (std::size_t{left} << 8 | right) * kSteps + step;
  }

 private:
  Palette palette_;
  std::vector<std::uint8_t> entries_;
};

}  // namespace plenovia
