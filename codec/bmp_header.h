// What stands before the pixels of a BMP file.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

#include "platform/palette.h"
#include "platform/result.h"

namespace plenovia {

enum class BmpCompression { kNone, kRunLength8, kRunLength4 };

struct BmpHeader {
  int width = 0;
  int height = 0;
  bool topDown = false;
  int bits = 0;  // a pixel: 1, 2, 4, 8, 16, 24 or 32
  BmpCompression compression = BmpCompression::kNone;
  std::array<std::uint32_t, 3> masks{};  // red, green and blue of 16- and 32-bit pixels
  Palette palette;                       // of at most 8 bits
  std::size_t pixelOffset = 0;           // within the file

  std::size_t RowBytes() const;  // without padding
  std::size_t Stride() const;    // with padding
};

// Checks all that the header says, also that its pixels fit into the bytes that are there.
[[nodiscard]] Result<BmpHeader> ParseBmpHeader(std::span<const std::uint8_t> bytes);

}  // namespace plenovia
