// The largest pictures and files that the program handles.
#pragma once

#include <cstddef>
#include <cstdint>

#include "platform/result.h"

namespace plenovia {

inline constexpr int kMaxSide = 32767;  // pixels
inline constexpr std::int64_t kMaxPixels = std::int64_t{1} << 29;
inline constexpr std::size_t kMaxFileBytes = std::size_t{1} << 30;

// Holds when both sides are 1..kMaxSide and the area is at most kMaxPixels; kTooLarge beyond, and
// kInvalid for a side below 1. To be asked before anything is allocated.
[[nodiscard]] Result<void> CheckPictureSize(std::int64_t width, std::int64_t height);

}  // namespace plenovia
