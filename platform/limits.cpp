#include "platform/limits.h"

#include <string>

namespace plenovia {

Result<void> CheckPictureSize(std::int64_t width, std::int64_t height) {
  const std::string size = std::to_string(width) + "x" + std::to_string(height);
  if (width < 1 || height < 1) {
    return Failure(ErrorCode::kInvalid, "a picture of " + size + " pixels has no area");
  }
  if (width > kMaxSide || height > kMaxSide || width * height > kMaxPixels) {
    return Failure(ErrorCode::kTooLarge, "a picture of " + size + " pixels is too large");
  }
  return {};
}

}  // namespace plenovia
