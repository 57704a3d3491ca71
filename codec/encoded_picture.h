// A picture in the bytes of a file format, ready to be written.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <utility>
#include <vector>

#include "platform/pixel_buffer.h"

namespace plenovia {

// The bytes as pieces in the order of the file, as WriteFile() takes them. A format that stores
// pixels as they are in memory hands over the picture's own rows: the picture must outlive this
// object, unchanged. Moving keeps the pieces valid.
class EncodedPicture {
 public:
  using Piece = std::span<const std::uint8_t>;

  explicit EncodedPicture(ByteBuffer file) : owned_(std::move(file)), pieces_{Piece(owned_)} {}
  // The pieces lie in `owned` or in the picture.
  EncodedPicture(ByteBuffer owned, std::vector<Piece> pieces)
      : owned_(std::move(owned)), pieces_(std::move(pieces)) {}

  EncodedPicture(EncodedPicture&&) = default;
  EncodedPicture& operator=(EncodedPicture&&) = default;
  EncodedPicture(const EncodedPicture&) = delete;
  EncodedPicture& operator=(const EncodedPicture&) = delete;

  std::span<const Piece> pieces() const { return pieces_; }
  // A copy of the whole file in one piece. Throws std::bad_alloc when the memory does not suffice.
  ByteBuffer Joined() const;

 private:
  ByteBuffer owned_;
  std::vector<Piece> pieces_;
};

}  // namespace plenovia
