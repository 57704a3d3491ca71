// The run-length encoding of BMP pictures of 4 and 8 bits a pixel.
#pragma once

#include <cstdint>
#include <span>

#include "platform/indexed_image.h"
#include "platform/result.h"

namespace plenovia {

// Fills `image` from `encoded`, the bottom row first, or the top row first when `topDown`. Pixels
// that the file jumps over are 0; runs are cut off at the right edge. Fails with kCorrupt when
// `encoded` ends before its mark for the end and before the last pixel.
[[nodiscard]] Result<void> DecodeBmpRunLength(std::span<const std::uint8_t> encoded, int bits,
                                              bool topDown, IndexedImage& image);

}  // namespace plenovia
