// Pixels of 1, 2 or 4 bits that share bytes, the leftmost in the highest bits.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace plenovia {

// The bytes that `count` pixels of `bits` bits each take.
constexpr std::size_t PackedBytes(std::size_t count, int bits) {
  return (count * static_cast<std::size_t>(bits) + 7) / 8;
}

// One byte a pixel for all of `pixels`. `bits` is 1, 2, 4 or 8; `packed` holds at least
// PackedBytes(pixels.size(), bits) bytes.
void UnpackBits(std::span<const std::uint8_t> packed, int bits, std::span<std::uint8_t> pixels);

}  // namespace plenovia
