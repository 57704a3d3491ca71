// Bytes in memory as the libraries of the file formats take and give them.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <new>
#include <span>

#include "platform/pixel_buffer.h"

namespace plenovia {

// Hands out the bytes from front to back.
class ByteReader {
 public:
  explicit ByteReader(std::span<const std::uint8_t> bytes) : bytes_(bytes) {}

  // Copies the next `count` bytes and returns true; or copies what is left and returns false.
  bool Take(std::uint8_t* to, std::size_t count) {
    const std::size_t given = std::min(count, bytes_.size() - position_);
    std::copy_n(bytes_.data() + position_, given, to);
    position_ += given;
    truncated_ = truncated_ || given < count;
    return given == count;
  }
  std::size_t position() const { return position_; }
  // Whether more bytes were wanted than there are.
  bool truncated() const { return truncated_; }

 private:
  std::span<const std::uint8_t> bytes_;
  std::size_t position_ = 0;
  bool truncated_ = false;
};

// False when there is not enough memory; never throws, so that C code may call it.
inline bool AppendBytes(ByteBuffer& to, std::span<const std::uint8_t> bytes) noexcept {
  try {
    to.insert(to.end(), bytes.begin(), bytes.end());
    return true;
  } catch (const std::bad_alloc&) {
    return false;
  }
}

}  // namespace plenovia
