#include "bench/smooth_depth.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace plenovia::bench {

IndexedImage SmoothDepth(int width, int height) {
  IndexedImage picture = IndexedImage::Create(width, height, Palette::Grays()).value();
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      const double u = static_cast<double>(x) / width;
      const double v = static_cast<double>(y) / height;
      double level = 60 + 50 * std::sin(3 * std::numbers::pi * u) * std::cos(2 * v) + 40 * v;
      const double r2 = std::pow((u - 0.6) * 4, 2) + std::pow((v - 0.5) * 3, 2);
      if (r2 < 1) level = std::max(level, 130 + 120 * std::sqrt(1 - r2));
      picture.Row(y)[static_cast<std::size_t>(x)] =
          static_cast<std::uint8_t>(std::clamp(level, 0.0, 255.0));
    }
  }
  return picture;
}

}  // namespace plenovia::bench
