#include "depthmap/level_choice.h"

namespace plenovia {

bool IsLevel(std::int32_t value) {
  return value >= kLowestLevel && value <= kHighestLevel;
}

std::int32_t StepLevelUp(std::int32_t value) {
  return value < kHighestLevel ? value + 1 : kLowestLevel;
}

std::int32_t StepLevelDown(std::int32_t value) {
  return value > kLowestLevel ? value - 1 : kHighestLevel;
}

}  // namespace plenovia
