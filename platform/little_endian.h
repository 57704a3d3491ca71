// Numbers in the bytes of a file, lowest byte first.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "platform/pixel_buffer.h"

namespace plenovia {

// `at` and the bytes after it lie within `bytes`.
inline std::uint16_t Get16(std::span<const std::uint8_t> bytes, std::size_t at) {
  return static_cast<std::uint16_t>(bytes[at] | bytes[at + 1] << 8);
}
inline std::uint32_t Get32(std::span<const std::uint8_t> bytes, std::size_t at) {
  return Get16(bytes, at) | static_cast<std::uint32_t>(Get16(bytes, at + 2)) << 16;
}

// Appends the low bytes of `value`.
inline void Put16(ByteBuffer& bytes, std::uint32_t value) {
  bytes.push_back(static_cast<std::uint8_t>(value));
  bytes.push_back(static_cast<std::uint8_t>(value >> 8));
}
inline void Put32(ByteBuffer& bytes, std::uint32_t value) {
  Put16(bytes, value);
  Put16(bytes, value >> 16);
}

}  // namespace plenovia
