// Depth maps that differ only in how many shapes they are made of.
#pragma once

#include "depthmap/depth_list.h"

namespace plenovia::bench {

// A square map. Its shapes, of all kinds and of one size, lie anywhere and cover as much of it,
// however many they are.
TDepthList CrowdedMap(int side, int objects);

}  // namespace plenovia::bench
