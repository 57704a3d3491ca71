// Pattern tiles as the background of a stereogram.
#pragma once

#include <cstdint>
#include <span>

#include "platform/indexed_image.h"

namespace plenovia {

// The column at which a tile begins from which all others follow at whole tile widths: 0 for the
// left-to-right method; for the others so that one tile is centred on the middle of the `width`
// columns.
int TileOrigin(std::int32_t scanMethod, int width, int tileWidth);

// Covers `row` with row `y` (counted from the top of the picture) of the tiles, one of which begins
// at column `origin` (0 or below included).
void TilePatternRow(std::span<std::uint8_t> row, const IndexedImage& tile, int origin, int y);

// Covers the whole picture.
void TilePattern(IndexedImage& picture, const IndexedImage& tile, std::int32_t scanMethod);

}  // namespace plenovia
