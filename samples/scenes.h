// The scenes of the depth pictures.
#pragma once

#include <functional>

namespace plenovia {

// The depth level of a pixel, column and row from the upper left; the same on every machine.
using LevelFunction = std::function<int(int, int)>;

// Height fields seen from above, levels 0..63.
LevelFunction IslandScene(int width, int height);

}  // namespace plenovia
