// Pattern tiles as the background of a stereogram.
#pragma once

#include <cstdint>
#include <span>

#include "platform/indexed_image.h"

namespace plenovia {

// Covers `row` with row `y` (counted from the top of the picture) of the tiles, one of which begins
// at column `origin` (0 or below included).
void TilePatternRow(std::span<std::uint8_t> row, const IndexedImage& tile, int origin, int y);

}  // namespace plenovia
