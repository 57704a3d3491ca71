// Heights of any unit as levels.
#pragma once

#include <span>

#include "platform/fine_image.h"
#include "platform/result.h"

namespace plenovia {

// Rows top down, width * height heights. The lowest finite height becomes level 0, which is far,
// and the highest level 65535; where all are equal, 0. Infinite heights count as the nearest of
// these. What is no number has no depth: it gets level 0. Fails as FineImage::Create() does, and
// with kInvalid when no height is finite.
[[nodiscard]] Result<FineImage> LevelsFromHeights(int width, int height,
                                                  std::span<const float> heights);

// The same for levels: the lowest becomes 0, the highest 65535; equal ones stay as they are.
void StretchLevels(FineImage& image);

}  // namespace plenovia
