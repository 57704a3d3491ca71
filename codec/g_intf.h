// Rows of device-independent bitmaps, and the colours of a device.
#pragma once

#include <cstdint>
#include <span>

#include "platform/palette.h"
#include "platform/result.h"

namespace plenovia {

class TGIntf {
 public:
  // Unpacks a row of 1, 4 or 8 bits a pixel, the leftmost pixel in the highest bits, to one byte a
  // pixel, for all of `pixels`. kInvalid for other depths and for too short a row.
  [[nodiscard]] static Result<void> BmpDecode(std::span<const std::uint8_t> row, int bitsPerPixel,
                                              std::span<std::uint8_t> pixels);
  // The reverse: the low bits of each pixel into `row`, whose other bits become 0.
  [[nodiscard]] static Result<void> BmpEncode(std::span<const std::uint8_t> pixels,
                                              int bitsPerPixel, std::span<std::uint8_t> row);

  // `count` colours (2..256, clamped) for a display without a palette of its own: black and white,
  // the 16 colours of simple displays, or evenly spread over red, green and blue with grays as the
  // rest.
  static Palette GetDevicePalette(int count);
};

}  // namespace plenovia
