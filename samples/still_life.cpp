#include <array>

#include "samples/ray_caster.h"
#include "samples/scenes.h"

namespace plenovia {

namespace {

// Turned on a potter's wheel: belly, neck and lip.
double Vase(const Vec& p) {
  const double h = std::clamp(p.y, 0.0, 2.5);
  const double radius =
      0.55 + 0.30 * std::sin(1.9 * h - 0.1) - 0.02 * h + 0.15 * std::exp((h - 2.5) * 6);
  const double r = std::sqrt(p.x * p.x + p.z * p.z);
  const double wall = (r - radius) * 0.7;
  return std::max(wall, std::abs(p.y - 1.25) - 1.25);
}

double Tulip(const Vec& p, const Vec& foot, const Vec& head) {
  const double stem = Rod(p, foot, head, 0.06, 0.06);
  double bloom = 1e9;
  for (int petal = 0; petal < 5; ++petal) {
    const double angle = petal * 2 * 3.14159265 / 5 + head.x;
    const Vec out{std::cos(angle) * 0.17, 0.08, std::sin(angle) * 0.17};
    bloom = Join(bloom, Ellipsoid(p, head + out, {0.16, 0.42, 0.16}), 0.03);
  }
  return std::min(stem, bloom);
}

double Apple(const Vec& p, const Vec& centre) {
  const Vec q = p - centre;
  const double body = Ring(q, {0, 0, 0}, 0.17, 0.33);
  const double stalk = Rod(q, {0, 0.15, 0}, {0.08, 0.48, 0}, 0.035, 0.05);
  return std::min(body, stalk);
}

double Pear(const Vec& p, const Vec& centre) {
  const Vec q = TurnZ(p - centre, -0.16);
  const double body = Join(Sphere(q, {0, 0, 0}, 0.44), Sphere(q, {0, 0.58, 0}, 0.22), 0.5);
  return std::min(body, Rod(q, {0, 0.75, 0}, {0.08, 1.02, 0}, 0.035, 0.05));
}

double Grapes(const Vec& p, const Vec& centre) {
  const Vec q = p - centre;
  double bunch = 1e9;
  for (int i = 0; i < 22; ++i) {
    const double t = i / 21.0;
    const double angle = i * 2.39996;
    const double spread = 0.40 * (1 - 0.75 * t);
    const Vec grape{-0.45 + 1.25 * t + 0.4 * spread * std::cos(angle),
                    0.16 + 0.6 * spread * (1 + std::sin(angle)), spread * std::cos(angle * 1.7)};
    bunch = std::min(bunch, Sphere(q, grape, 0.165));
  }
  return bunch;
}

double Scene(const Vec& p) {
  const double wall = p.z + 1.45;
  // The cloth hangs in folds over the front edge of the table.
  const double fold = p.y < 0 ? 0.10 * std::sin(p.x * 4.2) * std::min(1.0, -p.y) : 0.0;
  const double table = Box(p, {0, -1.6, 0}, {6, 1.6, 1.75 + fold}, 0.12) * 0.8;
  double all = std::min(wall, table);
  all = std::min(all, Vase(p - Vec{-1.05, 0, -0.55}));
  for (const auto& [x, y, z] : std::array<Vec, 5>{{{-1.85, 3.2, -0.7},
                                                   {-1.35, 3.75, -0.9},
                                                   {-0.65, 3.55, -0.5},
                                                   {-0.15, 3.0, -0.8},
                                                   {-1.1, 3.05, -0.05}}}) {
    all = std::min(all, Tulip(p, {-1.05, 2.0, -0.55}, {x, y, z}));
  }
  all = std::min(all, Apple(p, {0.35, 0.33, 0.25}));
  all = std::min(all, Apple(p, {1.05, 0.33, 0.85}));
  all = std::min(all, Pear(p, {1.15, 0.43, -0.25}));
  all = std::min(all, Pear(p, {2.0, 0.43, 0.2}));
  return std::min(all, Grapes(p, {-1.2, 0, 0.95}));
}

}  // namespace

Result<IndexedImage> StillLife() {
  return RenderDepth(
      Scene,
      {.target = {0.1, 1.45, 0}, .height = 6.2, .tilt = 0.22, .nearest = 2.1, .farthest = -1.7});
}

}  // namespace plenovia
