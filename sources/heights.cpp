#include "sources/heights.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>

namespace plenovia {

Result<FineImage> LevelsFromHeights(int width, int height, std::span<const float> heights) {
  auto image = FineImage::Create(width, height);
  if (!image) return image;
  double lowest = std::numeric_limits<double>::infinity();
  double highest = -lowest;
  for (const float z : heights) {
    if (!std::isfinite(z)) continue;
    lowest = std::min<double>(lowest, z);
    highest = std::max<double>(highest, z);
  }
  if (lowest > highest) return Failure(ErrorCode::kInvalid, "There is no depth anywhere.");
  const double scale = lowest < highest ? FineImage::kHighest / (highest - lowest) : 0;
  std::ranges::transform(heights, image->pixels().begin(), [&](float z) {
    if (std::isnan(z)) return std::uint16_t{0};
    const double above = std::clamp<double>(z, lowest, highest) - lowest;
    return static_cast<std::uint16_t>(std::lround(above * scale));
  });
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
