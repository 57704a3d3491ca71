// The levels that a user can give.
#pragma once

#include <cstdint>

namespace plenovia {

class LevelGrid;
class TDepthObj;

inline constexpr std::int32_t kLowestLevel = 0;
inline constexpr std::int32_t kHighestLevel = 255;

bool IsLevel(std::int32_t value);
// The number one step on from any number. What would leave the levels at one end comes in again
// at the other: 0 after everything from the highest level on, the highest one below everything up
// to 0.
std::int32_t StepLevelUp(std::int32_t value);
std::int32_t StepLevelDown(std::int32_t value);

// A level that is seen before a ground of this level, also with the depth range of a new record of
// parameters: above it where there is room.
std::int32_t LevelThatStandsOut(std::int32_t ground);

// Whether the object, which lies on top, changes a level of the map below it.
bool StandsOut(const TDepthObj& object, const LevelGrid& below);

}  // namespace plenovia
