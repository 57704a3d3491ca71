#include "depthmap/level_entry.h"

#include <utility>

#include "depthmap/level_choice.h"

namespace plenovia {

std::int32_t LevelEntry::Type(int digit) {
  const std::int32_t longer = 10 * number_.value_or(0) + digit;
  number_ = longer <= kHighestLevel ? longer : digit;
  return *number_;
}

std::optional<std::int32_t> LevelEntry::Take() {
  return std::exchange(number_, std::nullopt);
}

}  // namespace plenovia
