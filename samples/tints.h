// Palettes that run through a few colours.
#pragma once

#include <initializer_list>

#include "platform/palette.h"

namespace plenovia {

// From this entry of the palette on the colour changes evenly to that of the next stop.
struct TintStop {
  int index;
  Rgb colour;
};

// `stops` begin at entry 0, rise, and end at the palette's last entry.
Palette Tints(std::initializer_list<TintStop> stops);

}  // namespace plenovia
