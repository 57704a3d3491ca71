// Numbers out of texts that people typed.
#pragma once

#include <cstdint>
#include <string_view>

namespace plenovia {

// The decimal number that the text begins with: blanks are skipped, then an optional sign and
// digits up to the first other character. No digits give 0; beyond 32 bits the nearest 32-bit
// value.
std::int32_t LeadingNumber(std::string_view text);

}  // namespace plenovia
