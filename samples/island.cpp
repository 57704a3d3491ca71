#include <array>
#include <cmath>
#include <vector>

#include "platform/random.h"
#include "samples/ray_caster.h"
#include "samples/scenes.h"

namespace plenovia {

namespace {

// Value noise on a fixed random lattice, -1..1.
class Roughness {
 public:
  explicit Roughness(std::uint64_t seed) {
    Random random(seed);
    for (double& value : lattice_) value = 2 * random.Unit() - 1;
  }
  double At(double x, double y) const {
    const double x0 = std::floor(x);
    const double y0 = std::floor(y);
    const double s = Smooth(x - x0);
    const double t = Smooth(y - y0);
    const double top = Corner(x0, y0) * (1 - s) + Corner(x0 + 1, y0) * s;
    const double bottom = Corner(x0, y0 + 1) * (1 - s) + Corner(x0 + 1, y0 + 1) * s;
    return top * (1 - t) + bottom * t;
  }
  double Octaves(double x, double y, int octaves) const {
    double sum = 0;
    for (double strength = 1; octaves > 0; --octaves, strength /= 2) {
      sum += strength * At(x, y);
      // The next one is turned, so that the lattice does not show.
      const double turned = 1.6 * x + 1.2 * y;
      y = 1.6 * y - 1.2 * x;
      x = turned;
    }
    return sum;
  }

 private:
  static double Smooth(double t) { return t * t * (3 - 2 * t); }
  double Corner(double x, double y) const {
    const auto column = static_cast<std::size_t>(static_cast<int>(x) & 63);
    const auto row = static_cast<std::size_t>(static_cast<int>(y) & 63);
    return lattice_[row * 64 + column];
  }
  std::array<double, 64 * 64> lattice_{};
};

double Hill(double x, double y, double cx, double cy, double reach) {
  const double d = ((x - cx) * (x - cx) + (y - cy) * (y - cy)) / (reach * reach);
  return std::exp(-d);
}

// Sea, shore, woods, rock and snow in 64 steps.
Palette HeightTints() {
  constexpr std::array<std::pair<int, Rgb>, 11> kStops = {{{0, {8, 29, 88}},
                                                           {6, {20, 74, 140}},
                                                           {12, {52, 138, 189}},
                                                           {15, {140, 208, 214}},
                                                           {16, {240, 226, 172}},
                                                           {19, {196, 200, 110}},
                                                           {27, {86, 152, 74}},
                                                           {38, {38, 106, 62}},
                                                           {48, {136, 112, 76}},
                                                           {56, {178, 160, 146}},
                                                           {63, {252, 252, 255}}}};
  std::vector<Rgb> tints;
  for (std::size_t stop = 0; tints.size() < 64;) {
    const int index = static_cast<int>(tints.size());
    if (index > kStops[stop + 1].first) {
      ++stop;
      continue;
    }
    const auto& [from, a] = kStops[stop];
    const auto& [to, b] = kStops[stop + 1];
    const auto mix = [part = index - from, whole = to - from](int low, int high) {
      return static_cast<std::uint8_t>(low + (high - low) * part / whole);
    };
    tints.push_back({mix(a.red, b.red), mix(a.green, b.green), mix(a.blue, b.blue)});
  }
  return Palette(tints);
}

}  // namespace

Result<IndexedImage> Island() {
  Result<IndexedImage> picture = IndexedImage::Create(kSampleWidth, kSampleHeight, HeightTints());
  if (!picture) return picture;
  const Roughness rough(7);
  for (int row = 0; row < kSampleHeight; ++row) {
    for (int column = 0; column < kSampleWidth; ++column) {
      // The sea round the island is four units wide and three high; shores are bent by the noise.
      const double px = column / 200.0;
      const double py = row / 200.0;
      const double x =
          px + 0.15 * rough.Octaves(px * 2.2 + 1.1 * py + 9, py * 2.2 - 1.1 * px + 30, 3);
      const double y =
          py + 0.15 * rough.Octaves(px * 2.2 - 1.1 * py + 30, py * 2.2 + 1.1 * px + 21, 3);
      const double volcano = 66 * Hill(x, y, 1.70, 1.40, 0.56);
      const double crater = 42 * Hill(x, y, 1.70, 1.40, 0.17);
      const double ridge = 30 * Hill(x, y, 2.65, 1.80, 0.46) + 18 * Hill(x, y, 2.50, 0.95, 0.40);
      const double bay = 15 * Hill(x, y, 2.20, 2.10, 0.24);
      const double islet = 24 * Hill(x, y, 0.62, 2.35, 0.24) + 20 * Hill(x, y, 3.45, 0.62, 0.20);
      const double d = std::sqrt((x - 3.35) * (x - 3.35) + (y - 2.45) * (y - 2.45));
      const double atoll = 15 * std::exp(-std::pow((d - 0.30) / 0.10, 2));
      const double land = volcano - crater + ridge - bay + islet + atoll;
      const double folds = rough.Octaves(px * 4 + 2 * py + 30, py * 4 - 2 * px + 40, 3);
      const double height = 5 + land + folds * (1.2 + 0.11 * land);
      picture->Row(row)[static_cast<std::size_t>(column)] =
          static_cast<std::uint8_t>(std::clamp(height, 0.0, 63.0) + 0.49);
    }
  }
  return picture;
}

}  // namespace plenovia
