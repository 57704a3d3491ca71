// True-colour pictures to reduce to a palette.
#pragma once

#include <vector>

#include "platform/palette.h"

namespace plenovia::bench {

// The pixels of all rows from the top.
using ColourScene = std::vector<Rgb>;

// An evening: sky, sun, hills and water.
ColourScene Landscape(int width, int height);
// A head of skin and hair before cloth, softly lit.
ColourScene Portrait(int width, int height);
// Moss and earth with noise in every pixel.
ColourScene Texture(int width, int height);

}  // namespace plenovia::bench
