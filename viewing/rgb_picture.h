// A true-colour picture to look at.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "platform/pixel_buffer.h"

namespace plenovia {

// 0xffRRGGBB, which Qt shows as it is.
constexpr std::uint32_t OpaqueColour(int red, int green, int blue) {
  return 0xff000000U | static_cast<std::uint32_t>(red) << 16 |
         static_cast<std::uint32_t>(green) << 8 | static_cast<std::uint32_t>(blue);
}

// Rows lie top down. A side below 1 gives an empty picture. Throws std::bad_alloc when the memory
// does not suffice.
struct RgbPicture {
  RgbPicture() = default;
  RgbPicture(int theWidth, int theHeight)
      : width(theWidth > 0 && theHeight > 0 ? theWidth : 0),
        height(width > 0 ? theHeight : 0),
        pixels(static_cast<std::size_t>(width) * static_cast<std::size_t>(height)) {}

  std::span<std::uint32_t> Row(int y) { return std::span(pixels).subspan(Offset(y), Width()); }
  std::span<const std::uint32_t> Row(int y) const {
    return std::span(pixels).subspan(Offset(y), Width());
  }
  bool operator==(const RgbPicture&) const = default;

  int width = 0;
  int height = 0;
  PixelVector<std::uint32_t> pixels;

 private:
  std::size_t Width() const { return static_cast<std::size_t>(width); }
  std::size_t Offset(int y) const { return static_cast<std::size_t>(y) * Width(); }
};

}  // namespace plenovia
