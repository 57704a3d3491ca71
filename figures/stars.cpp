#include "figures/figures.h"

namespace plenovia::figures {
namespace {

constexpr double kCos18 = 0.9510565162951535, kSin18 = 0.3090169943749474;
constexpr double kCos36 = 0.8090169943749475, kSin36 = 0.5877852522924731;

// The point's image in the sector of 36 degrees to the right of the upward axis, by reflections in
// the five mirror axes of a pentagon that stands on a side.
Point FoldToPentagonSector(Point p) {
  p.x = std::abs(p.x);
  const double right = 2 * std::max(0.0, kCos36 * p.x - kSin36 * p.y);
  p = {p.x - right * kCos36, p.y + right * kSin36};
  const double left = 2 * std::max(0.0, -kCos36 * p.x - kSin36 * p.y);
  return {std::abs(p.x + left * kCos36), p.y + left * kSin36};
}

}  // namespace

double Star(Point p, Turn turn) {
  constexpr double kTip = 1.06;
  const Point q = FoldToPentagonSector(InFigure(p, turn));
  // The edge leaves the tip (0, kTip) at 18 degrees from the axis.
  const double out = (q.x * kCos18 + q.y * kSin18) / (kTip * kSin18);
  return out < 1 ? 1 - 0.62 * out : 0;
}

double Rose(Point p, Turn turn) {
  constexpr double kHeart = 0.2;
  const double r = Length(p.x, p.y);
  if (r < kHeart) return 0.72 + 0.28 * Dome(r / kHeart);
  if (r > 1.05) return 0;
  const Point q = FoldToPentagonSector(InFigure(p, turn));
  const double phase = 2.5 * std::atan2(q.x, q.y);
  const double upward = std::cos(phase), between = std::sin(phase);
  double height = 0;
  const auto ring = [&](double size, double base, double petal) {
    const double out = r / (size * (0.45 + 0.55 * std::sqrt(std::max(0.0, petal))));
    if (out < 1) height = std::max(height, base + 0.2 * out * out + 0.08 * petal);
  };
  ring(1.02, 0.08, upward);
  ring(0.78, 0.3, between);
  ring(0.5, 0.5, upward);
  return height;
}

}  // namespace plenovia::figures
