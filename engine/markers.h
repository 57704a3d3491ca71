// The two squares that help the eyes to find the right divergence.
#pragma once

#include <cstdint>

#include "platform/indexed_image.h"

namespace plenovia {

// Draws both squares, `gap` pixels apart and symmetric about the middle column, near the upper
// edge, in the palette's nearest colours to black (outline) and yellow. What lies outside is
// clipped.
void DrawMarkers(IndexedImage& picture, std::int32_t gap);

}  // namespace plenovia
