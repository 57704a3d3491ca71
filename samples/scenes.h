// The sample scenes.
#pragma once

#include "depthmap/depth_list.h"
#include "platform/indexed_image.h"
#include "platform/result.h"

namespace plenovia {

// Gray pictures, near is bright.
[[nodiscard]] Result<IndexedImage> StillLife();
[[nodiscard]] Result<IndexedImage> Shark();
[[nodiscard]] Result<IndexedImage> ChessEndgame();

// 64 colours from deep sea to summit; the index is the height.
[[nodiscard]] Result<IndexedImage> Island();

// Depth maps of levels 0 to 24.
TDepthList House();
TDepthList SailingBoat();

}  // namespace plenovia
