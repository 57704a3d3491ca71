// Whole numbers of 32 bits out of a file, lowest byte first.
#pragma once

#include <cstdint>
#include <span>

#include "platform/little_endian.h"

namespace plenovia {

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
    value = static_cast<std::int32_t>(Get32(bytes_, 0));
    bytes_ = bytes_.subspan(4);
    return true;
  }

 private:
  std::span<const std::uint8_t> bytes_;
};

}  // namespace plenovia
