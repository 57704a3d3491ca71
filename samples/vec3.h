// Points and directions in space.
#pragma once

#include <algorithm>
#include <cmath>

namespace plenovia {

struct Vec3 {
  double x = 0;
  double y = 0;
  double z = 0;

  friend Vec3 operator+(const Vec3& a, const Vec3& b) { return {a.x + b.x, a.y + b.y, a.z + b.z}; }
  friend Vec3 operator-(const Vec3& a, const Vec3& b) { return {a.x - b.x, a.y - b.y, a.z - b.z}; }
  friend Vec3 operator*(const Vec3& a, double s) { return {a.x * s, a.y * s, a.z * s}; }
};

inline double Dot(const Vec3& a, const Vec3& b) {
  return a.x * b.x + a.y * b.y + a.z * b.z;
}
inline Vec3 Cross(const Vec3& a, const Vec3& b) {
  return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}
inline double Length(const Vec3& a) {
  return std::sqrt(Dot(a, a));
}
inline double Length(double x, double y) {
  return std::sqrt(x * x + y * y);
}
inline Vec3 Normalised(const Vec3& a) {
  return a * (1 / Length(a));
}

// `x` scaled from `from`..`to` to 0..1, cut off there, with a soft start and end.
inline double SmoothStep(double from, double to, double x) {
  const double t = std::clamp((x - from) / (to - from), 0.0, 1.0);
  return t * t * (3 - 2 * t);
}

// The greater and the lesser, blended where they differ by less than `blend`.
inline double SmoothMax(double a, double b, double blend) {
  const double t = std::max(blend - std::abs(a - b), 0.0) / blend;
  return std::max(a, b) + t * t * blend / 4;
}
inline double SmoothMin(double a, double b, double blend) {
  return -SmoothMax(-a, -b, blend);
}

}  // namespace plenovia
