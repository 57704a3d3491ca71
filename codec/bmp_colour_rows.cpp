#include "codec/bmp_colour_rows.h"

#include <bit>

#include "platform/little_endian.h"

namespace plenovia {

BmpColourRows::Part::Part(std::uint32_t wholeMask) : mask(wholeMask) {
  if (mask == 0) return;
  shift = std::countr_zero(mask);
  const int width = 32 - std::countl_zero(mask) - shift;
  if (width > 8) {
    shift += width - 8;
    mask = mask >> shift << shift;
  }
  const std::uint32_t largest = mask >> shift;
  for (std::uint32_t i = 0; i <= largest; ++i) {
    levels[i] = static_cast<std::uint8_t>((i * 255 + largest / 2) / largest);
  }
}

BmpColourRows::BmpColourRows(int bits, const std::array<std::uint32_t, 3>& masks)
    : bits_(bits), red_(masks[0]), green_(masks[1]), blue_(masks[2]) {}

void BmpColourRows::Read(std::span<const std::uint8_t> row, std::span<Rgb> colours) const {
  std::size_t at = 0;
  for (Rgb& colour : colours) {
    if (bits_ == 24) {
      colour = {row[at + 2], row[at + 1], row[at]};
      at += 3;
      continue;
    }
    const std::uint32_t pixel = bits_ == 16 ? Get16(row, at) : Get32(row, at);
    colour = {red_.Of(pixel), green_.Of(pixel), blue_.Of(pixel)};
    at += bits_ == 16 ? 2 : 4;
  }
}

}  // namespace plenovia
