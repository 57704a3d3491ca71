// Transparent colours as they look before white.
#pragma once

#include <cstdint>

#include "platform/palette.h"

namespace plenovia {

// `alpha` is 0 (nothing but white) to 255 (nothing but the level), and the same of colours.
constexpr std::uint8_t BeforeWhite(int level, int alpha) {
  return static_cast<std::uint8_t>((level * alpha + 255 * (255 - alpha) + 127) / 255);
}

constexpr Rgb BeforeWhite(Rgb colour, int alpha) {
  return {BeforeWhite(colour.red, alpha), BeforeWhite(colour.green, alpha),
          BeforeWhite(colour.blue, alpha)};
}

}  // namespace plenovia
