// How far the pixels of shapes lie inside them.
#pragma once

#include <cstdint>
#include <span>

#include "platform/pixel_buffer.h"

namespace plenovia {

// For each pixel of a picture, rows top down, the square of its distance to the nearest pixel that
// is not inside (`inside` is 0 there), in pixels; what lies around the picture is not inside.
// (Felzenszwalb and Huttenlocher, "Distance transforms of sampled functions", 2012.)
PixelVector<float> SquaredDistances(int width, int height, std::span<const std::uint8_t> inside);

}  // namespace plenovia
