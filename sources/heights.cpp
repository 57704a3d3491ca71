#include "sources/heights.h"

#include <algorithm>
#include <cstdint>

namespace plenovia {

Result<FineImage> LevelsFromHeights(int width, int height, std::span<const float> heights) {
  auto image = FineImage::Create(width, height);
  if (!image) return image;
  HeightScale scale;
  for (const float z : heights) scale.Include(z);
  if (scale.empty()) return Failure(ErrorCode::kInvalid, "There is no depth anywhere.");
  scale.Fix();
  std::ranges::transform(heights, image->pixels().begin(),
                         [&](float z) { return scale.LevelOf(z); });
  return image;
}

void StretchLevels(FineImage& image) {
  if (image.empty()) return;
  const auto [lowest, highest] = std::ranges::minmax(image.pixels());
  const std::uint32_t range = std::uint32_t{highest} - lowest;
  if (range == 0) return;
  for (std::uint16_t& level : image.pixels()) {
    const std::uint32_t above = std::uint32_t{level} - lowest;
    level = static_cast<std::uint16_t>((above * FineImage::kHighest + range / 2) / range);
  }
}

}  // namespace plenovia
