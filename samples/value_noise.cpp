#include "samples/value_noise.h"

#include <cmath>

#include "platform/random.h"

namespace plenovia {
namespace {

double AtCorner(std::uint64_t seed, std::int64_t column, std::int64_t row) {
  Random random(seed ^ (static_cast<std::uint64_t>(column) * 0x9e3779b97f4a7c15u) ^
                (static_cast<std::uint64_t>(row) * 0xc2b2ae3d27d4eb4fu));
  return 2 * random.Unit() - 1;
}

double Ease(double t) {
  return t * t * t * (t * (t * 6 - 15) + 10);
}

}  // namespace

double ValueNoise(std::uint64_t seed, double x, double y) {
  const double left = std::floor(x);
  const double top = std::floor(y);
  const auto column = static_cast<std::int64_t>(left);
  const auto row = static_cast<std::int64_t>(top);
  const double u = Ease(x - left);
  const double v = Ease(y - top);
  const double upper = AtCorner(seed, column, row) * (1 - u) + AtCorner(seed, column + 1, row) * u;
  const double lower =
      AtCorner(seed, column, row + 1) * (1 - u) + AtCorner(seed, column + 1, row + 1) * u;
  return upper * (1 - v) + lower * v;
}

double FractalNoise(std::uint64_t seed, double x, double y, int octaves, double gain) {
  double sum = 0;
  double height = 1;
  double total = 0;
  for (int octave = 0; octave < octaves; ++octave) {
    sum += height * ValueNoise(seed + static_cast<std::uint64_t>(octave), x, y);
    total += height;
    height *= gain;
    // A turned grid (by 3-4-5 triangles) hides the squares.
    const double turned = 2 * (0.8 * x - 0.6 * y);
    y = 2 * (0.6 * x + 0.8 * y);
    x = turned;
  }
  return sum / total;
}

}  // namespace plenovia
