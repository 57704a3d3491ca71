#include "codec/encoded_picture.h"

namespace plenovia {

ByteBuffer EncodedPicture::Joined() const {
  std::size_t size = 0;
  for (const Piece piece : pieces_) size += piece.size();
  ByteBuffer whole;
  whole.reserve(size);
  for (const Piece piece : pieces_) whole.insert(whole.end(), piece.begin(), piece.end());
  return whole;
}

}  // namespace plenovia
