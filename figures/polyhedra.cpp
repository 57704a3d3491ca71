#include <array>
#include <limits>
#include <span>

#include "figures/figures.h"

namespace plenovia::figures {
namespace {

constexpr double kNone = -std::numeric_limits<double>::infinity();

// Where the line of sight leaves the body { p : n . p <= distance for each normal n }, the depth
// that a viewer sees; kNone when it misses.
double Exit(const Sight& sight, std::span<const Vector> normals, double distance) {
  double exit = std::numeric_limits<double>::infinity();
  double entry = -exit;
  for (const Vector& normal : normals) {
    const double along = Dot(normal, sight.direction);
    const double room = distance - Dot(normal, sight.origin);
    if (along > 1e-9) {
      exit = std::min(exit, room / along);
    } else if (along < -1e-9) {
      entry = std::max(entry, room / along);
    } else if (room < 0) {
      return kNone;
    }
  }
  return entry < exit ? exit : kNone;
}

// The height of a surface at depth z when `far` has height 0 and `near` height 1.
double Between(double far, double near, double z) {
  return (z - far) / (near - far);
}

constexpr std::array<Vector, 6> kCube{
    {{1, 0, 0}, {-1, 0, 0}, {0, 1, 0}, {0, -1, 0}, {0, 0, 1}, {0, 0, -1}}};

constexpr double kNear = 0.5257311121191336;  // 1 and phi, as parts of a unit vector
constexpr double kFar = 0.8506508083520399;
constexpr std::array<Vector, 12> kDodecahedron{{{0, kNear, kFar},
                                                {0, -kNear, kFar},
                                                {0, kNear, -kFar},
                                                {0, -kNear, -kFar},
                                                {kNear, kFar, 0},
                                                {-kNear, kFar, 0},
                                                {kNear, -kFar, 0},
                                                {-kNear, -kFar, 0},
                                                {kFar, 0, kNear},
                                                {kFar, 0, -kNear},
                                                {-kFar, 0, kNear},
                                                {-kFar, 0, -kNear}}};

constexpr std::array<Vector, 4> kTetrahedron{{{1, 1, 1}, {1, -1, -1}, {-1, 1, -1}, {-1, -1, 1}}};
constexpr std::array<Vector, 4> kDualTetrahedron{
    {{-1, -1, -1}, {-1, 1, 1}, {1, -1, 1}, {1, 1, -1}}};

}  // namespace

double Cube(Point p, Turn turn) {
  constexpr Turn kTilt{0.8, 0.6};
  constexpr Turn kCorner{0.766, 0.643};
  return Between(-0.75, 1.1, Exit(LookAt(p, kTilt, Combine(turn, kCorner)), kCube, 0.66));
}

double Dodecahedron(Point p, Turn turn) {
  constexpr Turn kTilt{12.0 / 13, 5.0 / 13};
  return Between(-0.55, 0.96, Exit(LookAt(p, kTilt, turn), kDodecahedron, 0.8));
}

double StellaOctangula(Point p, Turn turn) {
  constexpr Turn kTilt{0.8, 0.6};
  constexpr Turn kStart{0.8, 0.6};
  constexpr double kFace = 0.62;
  const Sight sight = LookAt(p, kTilt, Combine(turn, kStart));
  const double z = std::max(Exit(sight, kTetrahedron, kFace), Exit(sight, kDualTetrahedron, kFace));
  return Between(-0.6, 0.95, z);
}

double SteppedPyramid(Point p, Turn turn) {
  constexpr double kSide = 0.7;
  constexpr int kSteps = 6;
  const Point q = InFigure(p, turn);
  const double wide = std::max(std::abs(q.x), std::abs(q.y)) / kSide;
  if (wide >= 1) return 0;
  const double ramp = 1.12 * (1 - wide) * kSteps / (kSteps - 0.6);
  const bool onRamp = std::min(std::abs(q.x), std::abs(q.y)) < 0.1;
  const double step = (std::floor((1 - wide) * kSteps) + 1) / kSteps;
  return onRamp ? std::min(1.0, std::max(ramp, 0.08)) : step;
}

}  // namespace plenovia::figures
