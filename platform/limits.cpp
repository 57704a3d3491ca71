#include "platform/limits.h"

#include <string>

namespace plenovia {

Result<void> CheckPictureSize(std::int64_t width, std::int64_t height) {
  if (width < 1 || height < 1) return Failure(ErrorCode::kInvalid, "The picture has no pixels.");
  if (width > kMaxSide || height > kMaxSide || width * height > kMaxPixels) {
    return Failure(ErrorCode::kTooLarge, "A picture of " + std::to_string(width) + " x " +
                                             std::to_string(height) + " pixels is too large.");
  }
  return {};
}

}  // namespace plenovia
