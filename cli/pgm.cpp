#include "cli/pgm.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <new>
#include <string>
#include <utility>

namespace plenovia {

namespace {

ByteBuffer Header(int width, int height, int white) {
  const std::string text = "P5\n" + std::to_string(width) + ' ' + std::to_string(height) + "\n" +
                           std::to_string(white) + "\n";
  ByteBuffer header(text.size());
  std::copy(text.begin(), text.end(), header.begin());
  return header;
}

}  // namespace

Result<EncodedPicture> EncodePgm(const IndexedImage& picture) {
  ByteBuffer header = Header(picture.width(), picture.height(), 255);
  const EncodedPicture::Piece first(header);
  return EncodedPicture(std::move(header), {first, picture.pixels()});
}

Result<EncodedPicture> EncodeFinePgm(const FineImage& picture) {
  try {
    ByteBuffer file = Header(picture.width(), picture.height(), FineImage::kHighest);
    std::size_t at = file.size();
    file.resize(at + picture.pixels().size() * 2);
    for (const std::uint16_t pixel : picture.pixels()) {
      file[at++] = static_cast<std::uint8_t>(pixel >> 8);
      file[at++] = static_cast<std::uint8_t>(pixel & 255);
    }
    return EncodedPicture(std::move(file));
  } catch (const std::bad_alloc&) {
    return Failure(ErrorCode::kTooLarge, "There is not enough memory to write the PGM file.");
  }
}

}  // namespace plenovia
