#include "viewing/depth_picture.h"

#include <algorithm>

namespace plenovia {

RgbPicture DepthPicture(const LevelField& field, LevelRange range) {
  RgbPicture picture(field.width(), field.height());
  const std::int64_t levels = std::max<std::int64_t>(1, range.highest - range.lowest);
  for (int y = 0; y < picture.height; ++y) {
    std::ranges::transform(field.Row(y), picture.Row(y).begin(), [&](std::int32_t level) {
      if (level < range.lowest) return kTooFarColour;
      if (level > range.highest) return kTooNearColour;
      const int gray = static_cast<int>((level - range.lowest) * 255 / levels);
      return OpaqueColour(gray, gray, gray);
    });
  }
  return picture;
}

}  // namespace plenovia
