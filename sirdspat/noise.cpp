#include "sirdspat/noise.h"

#include <array>
#include <cmath>

#include "platform/random.h"
#include "sirdspat/exact_math.h"

namespace plenovia {

namespace {

int Wrap(std::int64_t value, int period) {
  const std::int64_t rest = value % period;
  return static_cast<int>(rest < 0 ? rest + period : rest);
}

double Quintic(double t) {
  return t * t * t * (t * (t * 6 - 15) + 10);
}

}  // namespace

double HashUnit(std::uint64_t seed, std::int64_t a, std::int64_t b) {
  Random mixer(seed * 0x9e3779b97f4a7c15u + static_cast<std::uint64_t>(a) * 0xd1b54a32d192ed03u +
               static_cast<std::uint64_t>(b) * 0x8cb92ba72f3d8dd7u);
  mixer.Next();
  return mixer.Unit();
}

double PixelGrain(std::uint64_t seed, Torus torus, double x, double y) {
  return HashUnit(seed, Wrap(static_cast<std::int64_t>(std::floor(x)), torus.width),
                  Wrap(static_cast<std::int64_t>(std::floor(y)), torus.height));
}

Noise::Noise(Torus torus, double cellX, double cellY, int octaves, std::uint64_t seed)
    : torus_(torus),
      cellsX_(std::max(1, static_cast<int>(torus.width / cellX + 0.5))),
      cellsY_(std::max(1, static_cast<int>(torus.height / cellY + 0.5))),
      octaves_(octaves),
      seed_(seed) {}

double Noise::At(double x, double y) const {
  double sum = 0;
  double weight = 1;
  for (int octave = 0; octave < octaves_; ++octave, weight /= 2) {
    sum += weight * Octave(octave, x, y);
  }
  return sum * 1.4;
}

double Noise::Octave(int octave, double x, double y) const {
  const int cellsX = cellsX_ << octave;
  const int cellsY = cellsY_ << octave;
  const double u = x * cellsX / torus_.width;
  const double v = y * cellsY / torus_.height;
  const double u0 = std::floor(u);
  const double v0 = std::floor(v);
  const auto corner = [&](int i, int j) {
    const int cx = Wrap(static_cast<std::int64_t>(u0) + i, cellsX);
    const int cy = Wrap(static_cast<std::int64_t>(v0) + j, cellsY);
    const double angle = 2 * kPi * HashUnit(seed_ + static_cast<std::uint64_t>(octave), cx, cy);
    return ExactCos(angle) * (u - u0 - i) + ExactSin(angle) * (v - v0 - j);
  };
  const double s = Quintic(u - u0);
  const double t = Quintic(v - v0);
  const double top = corner(0, 0) * (1 - s) + corner(1, 0) * s;
  const double bottom = corner(0, 1) * (1 - s) + corner(1, 1) * s;
  return top * (1 - t) + bottom * t;
}

}  // namespace plenovia
