// The levels that a user can give.
#pragma once

#include <cstdint>

namespace plenovia {

inline constexpr std::int32_t kLowestLevel = 0;
inline constexpr std::int32_t kHighestLevel = 255;

bool IsLevel(std::int32_t value);
// The number one step on from any number. What would leave the levels at one end comes in again
// at the other: 0 after everything from the highest level on, the highest one below everything up
// to 0.
std::int32_t StepLevelUp(std::int32_t value);
std::int32_t StepLevelDown(std::int32_t value);

}  // namespace plenovia
