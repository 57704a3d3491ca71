#include "platform/indexed_image.h"

#include <algorithm>
#include <new>
#include <string>

#include "platform/limits.h"

namespace plenovia {

Result<IndexedImage> IndexedImage::Create(int width, int height, const Palette& palette) {
  if (auto fits = CheckPictureSize(width, height); !fits) return tl::unexpected(fits.error());
  IndexedImage image;
  try {
    image.pixels_.resize(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
  } catch (const std::bad_alloc&) {
    return Failure(ErrorCode::kTooLarge, "There is not enough memory for a picture of " +
                                             std::to_string(width) + " x " +
                                             std::to_string(height) + " pixels.");
  }
  image.width_ = width;
  image.height_ = height;
  image.palette_ = palette;
  return image;
}

void IndexedImage::Fill(std::uint8_t index) {
  std::fill(pixels_.begin(), pixels_.end(), index);
}

}  // namespace plenovia
