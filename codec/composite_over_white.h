// Transparent colours composited over white.
#pragma once

#include <cstdint>

#include "platform/palette.h"

namespace plenovia {

// `alpha` is 0 (only white) to 255 (only the level, or the colour).
constexpr std::uint8_t CompositeOverWhite(int level, int alpha) {
  return static_cast<std::uint8_t>((level * alpha + 255 * (255 - alpha) + 127) / 255);
}

constexpr Rgb CompositeOverWhite(Rgb colour, int alpha) {
  return {CompositeOverWhite(colour.red, alpha), CompositeOverWhite(colour.green, alpha),
          CompositeOverWhite(colour.blue, alpha)};
}

}  // namespace plenovia
