#include <array>

#include "figures/figures.h"

namespace plenovia::figures {

double Mandelbrot(Point p, Turn turn) {
  constexpr int kIterations = 24;
  constexpr double kScale = 1.4;
  constexpr double kShore = 0.7;
  const Point q = InFigure(p, turn);
  const Point c{q.x * kScale - 0.72, q.y * kScale};
  // In the cardioid and the disc beside it the height follows the multiplier of the cycle.
  // That of the fixed point is 1 - sqrt(1 - 4c), that of the cycle of two 4 (c + 1).
  const double size = Length(1 - 4 * c.x, 4 * c.y);
  const double rootX = std::sqrt(std::max(0.0, size + 1 - 4 * c.x) / 2);
  const double rootY = std::sqrt(std::max(0.0, size - 1 + 4 * c.x) / 2);
  const double multiplier = std::min(Length(1 - rootX, rootY), 4 * Length(c.x + 1, c.y));
  if (multiplier < 1) return kShore + (1 - kShore) * Dome(multiplier);
  Point z{0, 0}, dz{0, 0};
  for (int i = 0; i < kIterations; ++i) {
    dz = {2 * (z.x * dz.x - z.y * dz.y) + 1, 2 * (z.x * dz.y + z.y * dz.x)};
    z = {z.x * z.x - z.y * z.y + c.x, 2 * z.x * z.y + c.y};
    const double zz = z.x * z.x + z.y * z.y;
    if (zz > 64) {
      // The distance from the set, to within a factor of two.
      const double distance = 0.5 * std::sqrt(zz / (dz.x * dz.x + dz.y * dz.y)) * std::log(zz);
      return 0.55 - 0.8 * distance;
    }
  }
  return kShore;
}

double KochSnowflake(Point p, Turn turn) {
  constexpr double kRoot3 = 1.7320508075688772;
  constexpr double kOnEdge = 1e-9;  // pixels on an edge all belong to the same side
  const Point q = InFigure(p, turn);
  // Into the frame of the nearest side: x along it in side lengths, y outward from it.
  const double sides[3] = {-q.y, 0.5 * (q.y + kRoot3 * q.x), 0.5 * (q.y - kRoot3 * q.x)};
  const double along[3] = {q.x, 0.5 * (kRoot3 * q.y - q.x), 0.5 * (kRoot3 * q.y + q.x)};
  const int side = static_cast<int>(std::max_element(sides, sides + 3) - sides);
  double x = along[side] / kRoot3;
  double y = (sides[side] - 0.5) / kRoot3;
  if (y <= kOnEdge) return 0.58 - 1.5 * y;
  for (int stage = 1; stage <= 3; ++stage) {
    x = std::abs(x);
    const double bump = (x - 1.0 / 6) * kRoot3 / 2 + y / 2;  // distance from the raised side
    if (bump <= kOnEdge) return 0.58 - 0.15 * stage;
    // Into the frame of the part that is nearer: the raised side, or the outer third.
    const double alongBump = (1.0 / 6 - x) / 2 + y * kRoot3 / 2;
    if (y > (x - 1.0 / 6) * kRoot3) {
      x = 3 * alongBump - 0.5;
      y = 3 * bump;
    } else {
      x = 3 * x - 1;
      y = 3 * y;
    }
  }
  return 0;
}

double SierpinskiCarpet(Point p, Turn turn) {
  constexpr double kSide = 0.68;
  constexpr std::array kTowers{1.0, 0.79, 0.62};
  const Point q = InFigure(p, turn);
  double x = (q.x / kSide + 1) / 2, y = (q.y / kSide + 1) / 2;
  if (x < 0 || x >= 1 || y < 0 || y >= 1) return 0;
  for (const double tower : kTowers) {
    x *= 3;
    y *= 3;
    if (std::floor(x) == 1 && std::floor(y) == 1) return tower;
    x = Fraction(x);
    y = Fraction(y);
  }
  return 0.42;
}

double ApollonianGasket(Point p, Turn turn) {
  struct Circle {
    double curvature;
    Point centre;  // times the curvature
  };
  // One quarter; the rest follows by reflection in both axes.
  static constexpr std::array<Circle, 7> kCircles{{{2, {1, 0}},
                                                   {3, {0, 2}},
                                                   {6, {3, 4}},
                                                   {11, {8, 6}},
                                                   {14, {5, 12}},
                                                   {15, {0, 4}},
                                                   {23, {14, 18}}}};
  const Point q = InFigure(p, turn);
  const double x = std::abs(q.x), y = std::abs(q.y);
  if (x * x + y * y >= 1) return 0;
  for (const auto& [curvature, centre] : kCircles) {
    const double rr = Square(x * curvature - centre.x) + Square(y * curvature - centre.y);
    if (rr < 1) return 0.15 + 0.85 * std::sqrt((1 - rr) * 2 / curvature);
  }
  return 0.1;
}

}  // namespace plenovia::figures
