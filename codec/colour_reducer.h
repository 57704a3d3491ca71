// True colour to at most 256 colours that fit the picture.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "codec/colour_clusters.h"
#include "platform/palette.h"

namespace plenovia {

// Sees the picture's rows twice, so that nobody has to hold them all: Count each row, BuildPalette,
// then Map each row. There is no dithering.
// - A picture of grays alone gets 256 grays, index = gray.
// - A picture of at most `colours` (256) colours keeps them exactly, from dark to bright (then by
//   red, green, blue).
// - Any other gets `colours` fitted colours, from dark to bright: a histogram of 6 bits a channel
//   is clustered (FitClusters), and each of its cells goes to the nearest colour.
class ColourReducer {
 public:
  explicit ColourReducer(int colours = 256);  // 1..256

  // At most 2^29 pixels in all.
  void Count(std::span<const Rgb> row);
  void BuildPalette();
  const Palette& palette() const { return palette_; }
  // `indexes` is as long as `row`. A colour that was not counted gets any index.
  void Map(std::span<const Rgb> row, std::span<std::uint8_t> indexes) const;

 private:
  // The pixels of a cell, and the sums of what lies below the 6 bits that name it.
  struct Cell {
    std::uint32_t count = 0;
    std::uint32_t red = 0;
    std::uint32_t green = 0;
    std::uint32_t blue = 0;
  };
  enum class Kind { kGray, kFew, kMany };

  std::size_t FindSlot(std::uint32_t key) const;
  bool Remember(Rgb colour);
  std::vector<WeightedColour> Histogram() const;
  void KeepFewColours();
  void FitManyColours();

  int colours_;
  bool gray_ = true;
  bool few_ = true;
  Kind kind_ = Kind::kGray;
  Palette palette_;
  int known_ = 0;
  std::array<std::uint32_t, 1024> keys_{};    // hash table of the colours while they are few
  std::array<std::uint8_t, 1024> indexes_{};  // their palette indexes
  std::vector<Cell> cells_;
  std::vector<std::uint8_t> nearest_;  // palette index of each cell
};

}  // namespace plenovia
