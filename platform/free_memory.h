// How much memory the machine has left.
#pragma once

#include <cstdint>

namespace plenovia {

// Bytes that programs can still get before the system begins to swap; 0 when it does not tell.
std::int64_t FreeMemoryBytes();

}  // namespace plenovia
