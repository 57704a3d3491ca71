// Whole numbers of 32 bits in files, least significant byte first.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "platform/pixel_buffer.h"

namespace plenovia {

inline void PutInt32(ByteBuffer& out, std::int32_t value) {
  const auto bits = static_cast<std::uint32_t>(value);
  for (int shift = 0; shift < 32; shift += 8) {
    out.push_back(static_cast<std::uint8_t>(bits >> shift));
  }
}

// Takes numbers from the front of some bytes.
class Int32Reader {
 public:
  explicit Int32Reader(std::span<const std::uint8_t> bytes) : bytes_(bytes) {}

  bool AtEnd() const { return bytes_.empty(); }

  // False when fewer than 4 bytes are left; then they are used up and `value` stays as it was.
  [[nodiscard]] bool Read(std::int32_t& value) {
    if (bytes_.size() < 4) {
      bytes_ = {};
      return false;
    }
    std::uint32_t bits = 0;
    for (std::size_t i = 0; i < 4; ++i) bits |= static_cast<std::uint32_t>(bytes_[i]) << (8 * i);
    value = static_cast<std::int32_t>(bits);
    bytes_ = bytes_.subspan(4);
    return true;
  }

 private:
  std::span<const std::uint8_t> bytes_;
};

}  // namespace plenovia
