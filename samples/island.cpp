#include <algorithm>
#include <cmath>
#include <cstdint>

#include "samples/scenes.h"
#include "samples/value_noise.h"
#include "samples/vec3.h"

namespace plenovia {
namespace {

constexpr std::uint64_t kSeed = 20;
constexpr double kShore = 6;  // the first level above the water

// Heights are levels; lengths are pixels of a picture 800 wide.
struct Hill {
  double x, y;    // of the top
  double radius;  // where it ends
  double height;
  double stretch;  // how much longer it is along the x axis
};

// Broad and round.
constexpr Hill kLand[] = {
    {300, 320, 205, 21, 1.1}, {480, 270, 220, 21, 1.1}, {560, 380, 110, 9, 1.2},
    {640, 490, 70, 14, 1.2},  {160, 130, 62, 14, 1.3},
};
// Steep towards the top.
constexpr Hill kPeaks[] = {
    {420, 255, 185, 57, 1.0},
    {540, 300, 165, 51, 1.05},
    {600, 235, 110, 22, 1.0},
    {345, 225, 120, 26, 1.0},
};
constexpr Hill kVolcano = {272, 365, 140, 46, 1.0};
constexpr double kCrater = 30;  // its radius
// A bay in the south.
constexpr Hill kBay = {415, 480, 120, 22, 0.75};

double DistanceTo(const Hill& hill, double x, double y) {
  return Length((x - hill.x) / hill.stretch, y - hill.y) / hill.radius;
}

double Round(const Hill& hill, double x, double y) {
  const double t = std::max(0.0, 1 - DistanceTo(hill, x, y) * DistanceTo(hill, x, y));
  return hill.height * t * t;
}

double Steep(const Hill& hill, double x, double y) {
  const double d = DistanceTo(hill, x, y);
  const double t = std::max(0.0, 1.05 - std::sqrt(d * d + 0.003));
  return hill.height * t * (0.35 + 0.65 * t);
}

double Ground(double x, double y) {
  // The hills are bent by a coarse noise, so that coasts and ridges wind.
  const double bentX = x + 46 * FractalNoise(kSeed, x / 105, y / 105, 3, 0.45);
  const double bentY = y + 46 * FractalNoise(kSeed + 50, x / 105, y / 105, 3, 0.45);
  double land = -7;
  for (const Hill& hill : kLand) land += Round(hill, bentX, bentY);
  land -= Round(kBay, bentX, bentY);

  double mountains = 0;
  for (const Hill& hill : kPeaks) {
    mountains = SmoothMax(mountains, Steep(hill, bentX, bentY), 8);
  }
  // Sharp crests and round valleys between them, deepest on the slopes.
  const double crest =
      1 - 2.6 * std::abs(FractalNoise(kSeed + 100, bentX / 80, bentY / 80, 2, 0.35));
  mountains *= 0.8 + 0.28 * crest;

  const double nearX = (3 * x + bentX) / 4;
  const double nearY = (3 * y + bentY) / 4;
  mountains = SmoothMax(mountains, Steep(kVolcano, nearX, nearY), 6);
  const double fromCrater = kVolcano.radius * DistanceTo(kVolcano, nearX, nearY);
  mountains -= 22 * (1 - SmoothStep(kCrater * 0.2, kCrater * 1.1, fromCrater));

  // Under water the ground falls off to a flat bottom.
  if (land < 0) return kShore - 1 + land * 0.75;
  return kShore + land * 0.55 + mountains * SmoothStep(0, 9, land);
}

}  // namespace

LevelFunction IslandScene(int width, int) {
  const double unit = 800.0 / width;
  return [unit](int column, int row) {
    return static_cast<int>(std::clamp(Ground(column * unit, row * unit), 0.0, 63.0));
  };
}

}  // namespace plenovia
