// The tile generators, grouped by idea; each file of the group has the seeds' meaning to itself.
// A tile depends on its seed only and closes at all four edges.
#pragma once

#include <cstdint>

#include "sirdspat/tile.h"

namespace plenovia {

// dots.cpp: pixels that know nothing of their neighbours.
Tile InkDots(std::uint64_t seed);
Tile GrayGrain(std::uint64_t seed);
Tile HarbourDots(std::uint64_t seed);
Tile GlassBeads(std::uint64_t seed);
Tile Nebula(std::uint64_t seed);

// minerals.cpp
Tile Granite(std::uint64_t seed);
Tile Malachite(std::uint64_t seed);
Tile BeachSand(std::uint64_t seed);
Tile Pebbles(std::uint64_t seed);

// surfaces.cpp: wood, cloth and water.
Tile Walnut(std::uint64_t seed);
Tile Tweed(std::uint64_t seed);
Tile Lagoon(std::uint64_t seed);

// growth.cpp
Tile Labyrinth(std::uint64_t seed);
Tile Coral(std::uint64_t seed);

// flora.cpp
Tile Moss(std::uint64_t seed);
Tile AutumnLeaves(std::uint64_t seed);
Tile Meadow(std::uint64_t seed);

// shards.cpp
Tile StainedGlass(std::uint64_t seed);
Tile Terrazzo(std::uint64_t seed);
Tile Confetti(std::uint64_t seed);

}  // namespace plenovia
