// The pixels of BMP pictures that have no palette.
#pragma once

#include <array>
#include <cstdint>
#include <span>

#include "platform/palette.h"

namespace plenovia {

// Turns pixels of 16, 24 or 32 bits into colours.
class BmpColourRows {
 public:
  // `masks` tell where red, green and blue lie in pixels of 16 and 32 bits.
  BmpColourRows(int bits, const std::array<std::uint32_t, 3>& masks);

  // `row` holds at least the bytes of colours.size() pixels.
  void Read(std::span<const std::uint8_t> row, std::span<Rgb> colours) const;

 private:
  // Where one part of the colour lies; of more than 8 bits only the upper 8 count.
  struct Part {
    explicit Part(std::uint32_t mask);
    std::uint8_t Of(std::uint32_t pixel) const { return levels[(pixel & mask) >> shift]; }
    std::uint32_t mask;
    int shift = 0;
    std::array<std::uint8_t, 256> levels{};
  };

  int bits_;
  Part red_, green_, blue_;
};

}  // namespace plenovia
