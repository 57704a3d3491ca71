#include "figures/figures.h"

namespace plenovia::figures {

double Sphere(Point p, Turn turn) {
  constexpr Turn kTilt{12.0 / 13, 5.0 / 13};
  constexpr int kGores = 12;
  const double rr = p.x * p.x + p.y * p.y;
  if (rr >= 1) return 0;
  const double z = std::sqrt(1 - rr);
  const Vector at = LookAt(p, kTilt, turn).At(z);
  const double longitude = std::atan2(at.x, at.z) / kTwoPi + 0.5;
  const bool cap = std::abs(at.y) > 0.94;
  const bool raised = cap || static_cast<int>(longitude * kGores) % 2 == 0;
  return 0.24 + 0.68 * z + (raised ? 0.09 : 0.0);
}

double FlutedCone(Point p, Turn turn) {
  const Polar at = ToPolar(InFigure(p, turn));
  if (at.r > 1.1) return 0;
  const double rim = at.r * (1 + 0.09 * std::cos(8 * at.angle));
  return rim < 0.98 ? 1 - 0.88 * rim : 0;
}

double TwistedTorus(Point p, Turn turn) {
  constexpr double kRing = 0.66, kTube = 0.34;
  constexpr int kBands = 7;
  const Polar at = ToPolar(InFigure(p, turn));
  const double q = (at.r - kRing) / kTube;
  if (std::abs(q) >= 1) return 0;
  const bool raised = std::cos(kBands * at.angle + 2.5 * q) > 0;
  return 0.25 + 0.65 * Dome(q) + (raised ? 0.1 : 0.0);
}

double SteinmetzSolid(Point p, Turn turn) {
  constexpr Turn kTilt{0.8, 0.6};
  constexpr Turn kStart{0.8, 0.6};
  constexpr double kRadius = 0.78;
  const auto [o, d] = LookAt(p, kTilt, Combine(turn, kStart));
  double exit = 2, entry = -2;
  // The line crosses the cylinder about one axis where a t^2 + 2 b t + c = 0.
  const auto cut = [&](double o1, double d1, double o2, double d2) {
    const double a = d1 * d1 + d2 * d2;
    const double b = o1 * d1 + o2 * d2;
    const double c = o1 * o1 + o2 * o2 - kRadius * kRadius;
    const double root = b * b - a * c;
    if (root < 0) {
      exit = -2;
    } else if (a > 1e-9) {
      const double half = std::sqrt(root);
      exit = std::min(exit, (half - b) / a);
      entry = std::max(entry, (-half - b) / a);
    }
  };
  cut(o.x, d.x, o.y, d.y);
  cut(o.y, d.y, o.z, d.z);
  cut(o.z, d.z, o.x, d.x);
  return entry < exit ? (exit + 0.5) / 1.45 : 0;
}

double Hyperboloid(Point p, Turn turn) {
  constexpr Turn kTilt{24.0 / 25, 7.0 / 25};
  constexpr double kWaist = 0.34, kFlare = 0.66, kHeight = 0.9;
  constexpr int kRulings = 8;
  const Sight sight = LookAt(p, kTilt, turn);
  const auto& [o, d] = sight;
  const double a = d.x * d.x + d.z * d.z - kFlare * kFlare * d.y * d.y;
  const double b = o.x * d.x + o.z * d.z - kFlare * kFlare * o.y * d.y;
  const double c = o.x * o.x + o.z * o.z - kFlare * kFlare * o.y * o.y - kWaist * kWaist;
  const double root = b * b - a * c;
  if (root < 0) return 0;
  // The front of the wall, or its inside seen through the upper opening.
  for (const double t : {(-b + std::sqrt(root)) / a, (-b - std::sqrt(root)) / a}) {
    const Vector at = sight.At(t);
    if (std::abs(at.y) > kHeight) continue;
    const double along = std::atan2(at.x, at.z) - std::atan(kFlare / kWaist * at.y);
    return (t + 0.62) / 1.4 + 0.04 * std::cos(kRulings * along);
  }
  return 0;
}

double Heart(Point p, Turn turn) {
  constexpr double kShrink = 1.2;
  const Point q = InFigure({p.x * kShrink, p.y * kShrink}, turn);
  const double y = q.y + 0.12;
  if (std::abs(q.x) > 1.2 || std::abs(y) > 1.3) return 0;
  // With a = x^2 + y^2 + 9/4 z^2 - 1, which is a0 at z = 0, the surface is the largest root of
  // a^3 - linear * a - constant.
  const double a0 = q.x * q.x + y * y - 1;
  if (y <= 0 && a0 >= 0) return 0;
  const double linear = y * y * y / 20;
  const double constant = y * y * y * (q.x * q.x - a0 / 20);
  double a = 0;
  if (linear > 0) {
    const double dip = std::sqrt(linear / 3);
    if (constant < -2 * linear / 3 * dip) return 0;
    a = std::cbrt(std::max(0.0, constant)) + std::sqrt(linear);
  } else {
    a = std::cbrt(constant);
  }
  for (int i = 0; i < 5; ++i) {
    a -= (a * a * a - linear * a - constant) / std::max(3 * a * a - linear, 1e-9);
  }
  const double zz = (a - a0) * 4 / 9;
  return zz > 0 ? 0.34 + 0.97 * std::sqrt(zz) : 0;
}

}  // namespace plenovia::figures
