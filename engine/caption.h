// The line of text under a figure's stereogram.
#pragma once

#include <cstdint>
#include <span>

#include "platform/indexed_image.h"

namespace plenovia {

// A text as the dots of its letters: a byte a dot, 0 for none, row after row.
struct TextDots {
  int width = 0;
  int height = 0;
  std::span<const std::uint8_t> dots;
};

// Draws the text at the bottom left of the picture: its top left corner at (10, height - 20) in
// navy over the same in yellow one pixel further left and up, in the nearest colours that the
// palette has. What does not fit is cut off.
void DrawCaption(IndexedImage& picture, const TextDots& text);

}  // namespace plenovia
