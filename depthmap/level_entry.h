// A level typed digit by digit.
#pragma once

#include <cstdint>
#include <optional>

namespace plenovia {

// Three digits at most; a digit that would lead above the highest level begins a new number.
class LevelEntry {
 public:
  // `digit` is 0 to 9. Gives the number so far.
  std::int32_t Type(int digit);
  // The number typed, if any, which is then over.
  std::optional<std::int32_t> Take();

 private:
  std::optional<std::int32_t> number_;
};

}  // namespace plenovia
