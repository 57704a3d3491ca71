#include "samples/ray_caster.h"

namespace plenovia {

namespace {

constexpr int kMostSteps = 400;
constexpr double kClose = 5e-4;

}  // namespace

Result<IndexedImage> RenderDepth(const std::function<double(const Vec&)>& distance,
                                 const View& view) {
  Result<IndexedImage> picture =
      IndexedImage::Create(kSampleWidth, kSampleHeight, Palette::Grays());
  if (!picture) return picture;
  const Vec up{0, std::cos(view.tilt), -std::sin(view.tilt)};
  const Vec toEye{0, std::sin(view.tilt), std::cos(view.tilt)};
  const double range = view.nearest - view.farthest;
  for (int y = 0; y < kSampleHeight; ++y) {
    for (int x = 0; x < kSampleWidth; ++x) {
      const double right = (x + 0.5 - kSampleWidth / 2.0) / kSampleHeight * view.height;
      const double above = (kSampleHeight / 2.0 - y - 0.5) / kSampleHeight * view.height;
      const Vec start = view.target + Vec{right, 0, 0} + up * above + toEye * view.nearest;
      double travelled = 0;
      for (int step = 0; step < kMostSteps && travelled < range; ++step) {
        const double free = distance(start - toEye * travelled);
        if (free < kClose) break;
        travelled += free;
      }
      const double level = 255 * (1 - std::min(travelled / range, 1.0));
      picture->Row(y)[static_cast<std::size_t>(x)] = static_cast<std::uint8_t>(level + 0.5);
    }
  }
  return picture;
}

}  // namespace plenovia
