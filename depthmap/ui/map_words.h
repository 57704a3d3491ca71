// What the editor tells in the status bar.
#pragma once

#include <QString>

#include "depthmap/depth_list.h"
#include "depthmap/map_scale.h"
#include "depthmap/rubber_band.h"

namespace plenovia {

// Where the mouse is on the map, and the level there.
QString PlaceWords(const TDepthList& list, const DepthPoint& at, const MapScale& scale);
// Place and size of what is being drawn; empty when nothing is.
QString DrawingWords(const RubberBand& rubber, std::int32_t level);
// When a new shape cannot be seen: why.
QString HiddenWords(std::int32_t level);

}  // namespace plenovia
