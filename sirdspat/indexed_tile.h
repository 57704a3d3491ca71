// From the tile in true colour to the picture that ships.
#pragma once

#include "platform/indexed_image.h"
#include "platform/result.h"
#include "sirdspat/tile.h"

namespace plenovia {

// At most 256 colours fitted to the tile.
[[nodiscard]] Result<IndexedImage> IndexTile(const Tile& tile);

}  // namespace plenovia
