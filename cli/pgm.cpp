#include "cli/pgm.h"

#include <algorithm>
#include <string>
#include <utility>

namespace plenovia {

Result<EncodedPicture> EncodePgm(const IndexedImage& picture) {
  const std::string text =
      "P5\n" + std::to_string(picture.width()) + ' ' + std::to_string(picture.height()) + "\n255\n";
  ByteBuffer header(text.size());
  std::copy(text.begin(), text.end(), header.begin());
  const EncodedPicture::Piece first(header);
  return EncodedPicture(std::move(header), {first, picture.pixels()});
}

}  // namespace plenovia
