#include "depthmap/geometry.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace plenovia {

std::int32_t Rounded(double value) {
  constexpr double kLow = std::numeric_limits<std::int32_t>::min();
  constexpr double kHigh = std::numeric_limits<std::int32_t>::max();
  return static_cast<std::int32_t>(std::clamp(std::floor(value + 0.5), kLow, kHigh));
}

double DistanceToLine(const DepthPoint& at, const DepthPoint& a, const DepthPoint& b) {
  const double wayX = static_cast<double>(b.x) - a.x;
  const double wayY = static_cast<double>(b.y) - a.y;
  const double atX = static_cast<double>(at.x) - a.x;
  const double atY = static_cast<double>(at.y) - a.y;
  const double length = wayX * wayX + wayY * wayY;
  const double along = length > 0 ? std::clamp((atX * wayX + atY * wayY) / length, 0.0, 1.0) : 0.0;
  return std::hypot(atX - along * wayX, atY - along * wayY);
}

DepthGeometry Fitted(const DepthGeometry& geometry, const DepthRect& to) {
  const DepthRect& from = geometry.rect;
  const auto place = [](double value, double from1, double from2, double to1, double to2) {
    return Rounded(from1 == from2 ? to1 : to1 + (value - from1) * (to2 - to1) / (from2 - from1));
  };
  DepthGeometry fitted{to, geometry.points};
  for (DepthPoint& point : fitted.points) {
    point = {place(point.x, from.x1, from.x2, to.x1, to.x2),
             place(point.y, from.y1, from.y2, to.y1, to.y2)};
  }
  return fitted;
}

}  // namespace plenovia
