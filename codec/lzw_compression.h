// The compressing side of GIF (Welch, "A technique for high-performance data compression", Computer
// 17, 1984).
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "platform/pixel_buffer.h"

namespace plenovia {

// Pixels are compressed in parts of this many, shared out among `threads` (see WorkerCount); each
// part begins with a clear code.
inline constexpr std::size_t kLzwPartPixels = std::size_t{1} << 19;

// The codes for `pixels`, packed as in the blocks of a GIF file, with the end code. `codeBits`
// (2..8) is the width of a pixel; no pixel may be wider. At least one pixel. The same on every
// machine; a single part is what giflib makes of it.
ByteBuffer CompressLzw(int codeBits, std::span<const std::uint8_t> pixels, int threads);

}  // namespace plenovia
