// Another size for a depth map.
#pragma once

#include <cstdint>

#include "depthmap/depth_list.h"

namespace plenovia {

// Gives the map and its background box this size, at least 1 a side; one step of the history.
// Everything stays where it is, also what then lies off the map. A polygon as the background keeps
// its form.
void ResizeMap(TDepthList& list, std::int32_t width, std::int32_t height);

}  // namespace plenovia
