// The tiles that ship.
#pragma once

#include <cstdint>
#include <span>

#include "sirdspat/tile.h"

namespace plenovia {

struct TileRecipe {
  const char* name;
  Tile (*make)(std::uint64_t seed);
  std::uint64_t seed;
};

// In the order of their numbers; number n is the picture PatternFileName(n).
std::span<const TileRecipe> TileTable();

}  // namespace plenovia
