// The two squares that help the eyes to find the right divergence.
#pragma once

#include <cstdint>

#include "platform/indexed_image.h"

namespace plenovia {

// Small: five pixels wide, in the palette's nearest colours to black (outline) and yellow.
// Large: an eighth of the gap wide, at least nine pixels, in a colour that no pixel of their rows
// is near to. That colour and the outline's take palette entries that no pixel of the picture uses,
// or the nearest ones where all are used.
enum class MarkerSize { kSmall, kLarge };

// Draws both squares, `gap` pixels apart and symmetric about the middle column, near the upper
// edge. What lies outside is clipped.
void DrawMarkers(IndexedImage& picture, std::int32_t gap, MarkerSize size = MarkerSize::kSmall);

}  // namespace plenovia
