// What the figures share: points, turns and lines of sight.
//
// A figure is drawn in units of its own: x to the right, y up, the circle of radius 1 fits the
// picture. Its depth is a height from 0 (the far plane) to 1 (nearest), so one level is 1/24.
// A slope of 1.8 is 0.3 levels a pixel at 400 x 400 pixels; gentler ones are easy to see in depth.
#pragma once

#include <algorithm>
#include <cmath>
#include <numbers>

namespace plenovia::figures {

inline constexpr double kPi = std::numbers::pi;
inline constexpr double kTwoPi = 2 * kPi;

struct Point {
  double x, y;
};

struct Vector {
  double x, y, z;
};

inline double Dot(const Vector& a, const Vector& b) {
  return a.x * b.x + a.y * b.y + a.z * b.z;
}
inline double Square(double v) {
  return v * v;
}
inline double Length(double x, double y) {
  return std::sqrt(x * x + y * y);
}
inline double Fraction(double v) {
  return v - std::floor(v);
}

// An angle by its cosine and sine.
struct Turn {
  double cos, sin;
};

inline constexpr Turn Combine(Turn a, Turn b) {
  return {a.cos * b.cos - a.sin * b.sin, a.sin * b.cos + a.cos * b.sin};
}

// The point as seen from a figure that is turned counter-clockwise.
inline Point InFigure(Point p, Turn turn) {
  return {p.x * turn.cos + p.y * turn.sin, p.y * turn.cos - p.x * turn.sin};
}

struct Polar {
  double r, angle;  // angle from -pi to pi
};

inline Polar ToPolar(Point p) {
  return {Length(p.x, p.y), std::atan2(p.y, p.x)};
}

// The half circle over -1..1, and 0 beyond.
inline double Dome(double q) {
  return std::sqrt(std::max(0.0, 1 - q * q));
}

// A line of sight in the frame of a body: origin + t * direction, t grows towards the viewer.
struct Sight {
  Vector origin, direction;

  Vector At(double t) const {
    return {origin.x + t * direction.x, origin.y + t * direction.y, origin.z + t * direction.z};
  }
};

// The line of sight through `p` of a viewer who looks down by `tilt` on a body that is spun about
// its vertical axis.
inline Sight LookAt(Point p, Turn tilt, Turn spin) {
  const auto spun = [spin](double x, double y, double z) {
    return Vector{x * spin.cos - z * spin.sin, y, x * spin.sin + z * spin.cos};
  };
  return {spun(p.x, p.y * tilt.cos, -p.y * tilt.sin), spun(0, tilt.sin, tilt.cos)};
}

}  // namespace plenovia::figures
