// Solids as signed distances: how far a point is from the surface, negative inside. Some are only
// bounds, never larger than the distance, which is all that a ray needs.
#pragma once

#include <algorithm>
#include <cmath>

namespace plenovia {

// x to the right, y up, z towards the viewer.
struct Vec {
  double x = 0;
  double y = 0;
  double z = 0;
  Vec operator+(const Vec& o) const { return {x + o.x, y + o.y, z + o.z}; }
  Vec operator-(const Vec& o) const { return {x - o.x, y - o.y, z - o.z}; }
  Vec operator*(double f) const { return {x * f, y * f, z * f}; }
};

inline double Dot(const Vec& a, const Vec& b) {
  return a.x * b.x + a.y * b.y + a.z * b.z;
}
inline double Length(const Vec& a) {
  return std::sqrt(Dot(a, a));
}

// The point seen from a body that is turned by `angle` about the upright axis, or about the one
// towards the viewer.
inline Vec TurnY(const Vec& p, double angle) {
  const double c = std::cos(angle);
  const double s = std::sin(angle);
  return {c * p.x - s * p.z, p.y, s * p.x + c * p.z};
}
inline Vec TurnZ(const Vec& p, double angle) {
  const double c = std::cos(angle);
  const double s = std::sin(angle);
  return {c * p.x + s * p.y, c * p.y - s * p.x, p.z};
}

inline double Sphere(const Vec& p, const Vec& centre, double radius) {
  return Length(p - centre) - radius;
}

inline double Ellipsoid(const Vec& p, const Vec& centre, const Vec& radii) {
  const Vec q = p - centre;
  const Vec k{q.x / radii.x, q.y / radii.y, q.z / radii.z};
  return (Length(k) - 1) * std::min({radii.x, radii.y, radii.z});
}

inline double Box(const Vec& p, const Vec& centre, const Vec& half, double rounding = 0) {
  const Vec q{std::abs(p.x - centre.x) - half.x + rounding,
              std::abs(p.y - centre.y) - half.y + rounding,
              std::abs(p.z - centre.z) - half.z + rounding};
  const Vec out{std::max(q.x, 0.0), std::max(q.y, 0.0), std::max(q.z, 0.0)};
  return Length(out) + std::min(std::max({q.x, q.y, q.z}), 0.0) - rounding;
}

// A rod from a to b whose radius goes evenly from ra to rb.
inline double Rod(const Vec& p, const Vec& a, const Vec& b, double ra, double rb) {
  const Vec ab = b - a;
  const double t = std::clamp(Dot(p - a, ab) / Dot(ab, ab), 0.0, 1.0);
  return (Length(p - a - ab * t) - (ra + (rb - ra) * t)) * 0.9;
}

// A ring about the upright axis through the centre.
inline double Ring(const Vec& p, const Vec& centre, double radius, double thickness) {
  const Vec q = p - centre;
  const double out = std::sqrt(q.x * q.x + q.z * q.z) - radius;
  return std::sqrt(out * out + q.y * q.y) - thickness;
}

// Two solids that flow into each other within a distance of `blend`.
inline double Join(double a, double b, double blend) {
  const double h = std::max(blend - std::abs(a - b), 0.0) / blend;
  return std::min(a, b) - h * h * blend / 4;
}

}  // namespace plenovia
