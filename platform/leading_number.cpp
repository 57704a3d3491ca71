#include "platform/leading_number.h"

#include <algorithm>
#include <limits>

namespace plenovia {

std::int32_t LeadingNumber(std::string_view text) {
  const auto start = text.find_first_not_of(" \t\n\v\f\r");
  if (start == std::string_view::npos) return 0;
  text.remove_prefix(start);
  const bool negative = text.front() == '-';
  if (negative || text.front() == '+') text.remove_prefix(1);
  constexpr std::int64_t kLimit = std::int64_t{1} << 32;
  std::int64_t value = 0;
  for (const char c : text) {
    if (c < '0' || c > '9') break;
    value = std::min(kLimit, value * 10 + (c - '0'));
  }
  if (negative) value = -value;
  return static_cast<std::int32_t>(std::clamp<std::int64_t>(
      value, std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::max()));
}

}  // namespace plenovia
