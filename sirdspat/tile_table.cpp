#include "sirdspat/tile_table.h"

#include "sirdspat/generators.h"

namespace plenovia {

namespace {

constexpr TileRecipe kTiles[] = {
    {"ink dots", InkDots, 1},     {"gray grain", GrayGrain, 2},
    {"harbour", HarbourDots, 3},  {"glass beads", GlassBeads, 4},
    {"nebula", Nebula, 5},        {"granite", Granite, 6},
    {"malachite", Malachite, 7},  {"beach sand", BeachSand, 8},
    {"pebbles", Pebbles, 9},      {"walnut", Walnut, 10},
    {"tweed", Tweed, 11},         {"lagoon", Lagoon, 12},
    {"labyrinth", Labyrinth, 13}, {"coral", Coral, 14},
    {"moss", Moss, 15},           {"autumn leaves", AutumnLeaves, 16},
    {"meadow", Meadow, 17},       {"stained glass", StainedGlass, 18},
    {"terrazzo", Terrazzo, 19},   {"confetti", Confetti, 20},
};

}  // namespace

std::span<const TileRecipe> TileTable() {
  return kTiles;
}

}  // namespace plenovia
