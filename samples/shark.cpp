#include <array>

#include "samples/ray_caster.h"
#include "samples/scenes.h"

namespace plenovia {

namespace {

constexpr double kTilt = 0.24;  // of the view, radians

// A fin from root to tip in the plane of the two, thin across, swept back.
double Fin(const Vec& p, const Vec& root, const Vec& tip, double breadth) {
  return Rod({p.x, p.y, p.z}, root, tip, breadth, breadth * 0.25);
}

// Swims towards +x; the axis of the body is bent in the swing of its tail.
double SharkBody(const Vec& world) {
  Vec p = TurnY(world - Vec{-0.1, 0.35, 0.1}, -0.30);
  p = TurnZ(p, -0.10);
  const double bend = 0.06 * (p.x - 0.6) * (p.x - 0.6) * (p.x < 0.6 ? 1 : 0);
  p.z += bend;
  double body = Ellipsoid(p, {0.3, 0, 0}, {1.9, 0.56, 0.52});
  body = Join(body, Rod(p, {-0.6, 0.02, 0}, {-2.45, 0.12, 0}, 0.40, 0.10), 0.35);
  body = Join(body, Rod(p, {1.3, 0.02, 0}, {2.35, 0.10, 0}, 0.42, 0.08), 0.35);
  // Fins are flattened along the axis across them.
  const Vec upright{p.x, p.y, p.z * 2.2};
  double fins = Fin(upright, {0.15, 0.40, 0}, {-0.50, 1.18, 0}, 0.34);
  fins = Join(fins, Fin(upright, {-2.3, 0.15, 0}, {-2.95, 1.05, 0}, 0.24), 0.1);
  fins = Join(fins, Fin(upright, {-2.35, 0.1, 0}, {-2.75, -0.55, 0}, 0.18), 0.1);
  fins = std::min(fins, Fin(upright, {-1.5, 0.25, 0}, {-1.75, 0.48, 0}, 0.12));
  for (const double side : {1.0, -1.0}) {
    const Vec flat{p.x, p.y * 1.5, p.z};
    fins = std::min(fins, Fin(flat, {0.75, -0.40, side * 0.35}, {0.05, -1.25, side * 1.45}, 0.30));
    fins = std::min(fins, Fin(flat, {-1.15, -0.35, side * 0.1}, {-1.5, -0.75, side * 0.4}, 0.14));
  }
  double shark = Join(body, fins / 2.2, 0.12);
  // Gills, mouth and eye are cut or set into it.
  for (int gill = 0; gill < 4; ++gill) {
    const double x = 1.02 - 0.13 * gill;
    const double slit = Rod(p, {x, 0.24, 0.52}, {x - 0.07, -0.18, 0.54}, 0.045, 0.045);
    shark = std::max(shark, -slit);
  }
  const double mouth = Rod(p, {2.15, -0.14, 0}, {1.55, -0.30, 0.42}, 0.05, 0.05);
  shark = std::max(shark, -mouth);
  return Join(shark, Sphere(p, {1.72, 0.17, 0.27}, 0.11), 0.02);
}

double Fish(const Vec& world, const Vec& at, double size, double angle) {
  const Vec p = TurnY(world - at, angle) * (1 / size);
  const double body = Ellipsoid(p, {0, 0, 0}, {0.42, 0.2, 0.13});
  const double tail = Ellipsoid(p, {-0.60, 0, 0}, {0.09, 0.27, 0.08});
  return Join(body, tail, 0.2) * size;
}

double SeaFloor(const Vec& p) {
  const double ripples = 0.05 * std::sin(3.1 * p.x + 1.4 * std::sin(1.3 * p.z) + 4.5 * p.z);
  const double swell = 0.18 * std::sin(0.9 * p.x + 0.6) + 0.12 * std::cos(1.2 * p.z + 0.5 * p.x);
  return (p.y + 2.05 - swell - ripples) * 0.7;
}

// A slope behind all, square to the view and not far, so that nothing hides much of it.
double Slope(const Vec& p) {
  const double along = p.y * std::sin(kTilt) + p.z * std::cos(kTilt);
  const double relief = 0.10 * std::sin(1.1 * p.x + 0.8) + 0.08 * std::sin(1.7 * p.y - 0.6 * p.x);
  return (along + 1.30 - relief) * 0.9;
}

double Scene(const Vec& p) {
  double all = std::min({SharkBody(p), SeaFloor(p), Slope(p)});
  // Rocks on the floor.
  double rocks = Ellipsoid(p, {-2.9, -1.7, 0.4}, {0.75, 0.65, 0.6});
  rocks = Join(rocks, Ellipsoid(p, {-2.2, -1.8, 0.9}, {0.5, 0.4, 0.5}), 0.3);
  rocks = Join(rocks, Ellipsoid(p, {2.9, -1.75, 0.2}, {0.8, 0.5, 0.7}), 0.3);
  rocks = Join(rocks, Ellipsoid(p, {2.4, -1.9, 1.0}, {0.4, 0.3, 0.4}), 0.3);
  all = Join(all, rocks, 0.25);
  for (const auto& [at, size] :
       std::array<std::pair<Vec, double>, 6>{{{{2.5, 1.75, -1.2}, 0.8},
                                              {{1.7, 2.05, -1.4}, 0.7},
                                              {{3.0, 1.2, -1.0}, 0.7},
                                              {{2.1, 1.45, -1.3}, 0.6},
                                              {{-2.4, 2.05, -1.35}, 0.7},
                                              {{-3.0, 1.75, -1.25}, 0.8}}}) {
    all = std::min(all, Fish(p, at, size, -0.25));
  }
  return all;
}

}  // namespace

Result<IndexedImage> Shark() {
  return RenderDepth(
      Scene,
      {.target = {0, 0.1, 0}, .height = 5.2, .tilt = kTilt, .nearest = 1.9, .farthest = -1.5});
}

}  // namespace plenovia
