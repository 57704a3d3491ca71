// Functions of the tile generators that give the same bits on every machine: built from the four
// operations, comparisons and floor() only.
#pragma once

#include <algorithm>
#include <cmath>

namespace plenovia {

inline constexpr double kPi = 3.14159265358979323846;

// Bhaskara-like polynomial of degree 9 after reduction; error below 1e-5.
inline double ExactSin(double angle) {
  double turns = angle / (2 * kPi);
  turns -= std::floor(turns + 0.5);  // -0.5 .. 0.5
  if (turns > 0.25) turns = 0.5 - turns;
  if (turns < -0.25) turns = -0.5 - turns;
  const double x = turns * 2 * kPi;
  const double s = x * x;
  return x * (1 + s * (-1.0 / 6 + s * (1.0 / 120 + s * (-1.0 / 5040 + s / 362880))));
}
inline double ExactCos(double angle) {
  return ExactSin(angle + kPi / 2);
}

// The angle of (x, y) in -pi..pi to about 0.01; 0 for (0, 0).
inline double RoughAngle(double y, double x) {
  const double ax = std::abs(x);
  const double ay = std::abs(y);
  if (ax + ay == 0) return 0;
  const double t = std::min(ax, ay) / std::max(ax, ay);
  double angle = t * (kPi / 4 + 0.273 * (1 - t));
  if (ay > ax) angle = kPi / 2 - angle;
  if (x < 0) angle = kPi - angle;
  return y < 0 ? -angle : angle;
}

inline double Clamp01(double t) {
  return std::clamp(t, 0.0, 1.0);
}
// 0 below `low`, 1 above `high`, a smooth step between them.
inline double SmoothStep(double low, double high, double value) {
  const double t = Clamp01((value - low) / (high - low));
  return t * t * (3 - 2 * t);
}
inline double Fraction(double value) {
  return value - std::floor(value);
}

}  // namespace plenovia
