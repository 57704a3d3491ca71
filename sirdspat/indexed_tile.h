// From the tile in true colour to the picture that ships.
#pragma once

#include "platform/indexed_image.h"
#include "platform/result.h"
#include "sirdspat/tile.h"

namespace plenovia {

// In at most 254 colours fitted to the tile. After them the palette has the yellow and the navy of
// markers and captions, which no pixel of the tile uses: a stereogram has its pattern's colours
// only, and its markers must stand out in it.
[[nodiscard]] Result<IndexedImage> IndexTile(const Tile& tile);

}  // namespace plenovia
