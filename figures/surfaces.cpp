#include <array>

#include "figures/figures.h"

namespace plenovia::figures {
namespace {

bool InDisc(Point p) {
  return p.x * p.x + p.y * p.y < 1;
}

}  // namespace

double Saddle(Point p, Turn turn) {
  const Point q = InFigure(p, turn);
  return InDisc(p) ? 0.52 + 0.48 * (q.x * q.x - q.y * q.y) : 0;
}

double MonkeySaddle(Point p, Turn turn) {
  const Point q = InFigure(p, turn);
  return InDisc(p) ? 0.52 - 0.48 * q.y * (q.y * q.y - 3 * q.x * q.x) : 0;
}

double GaussianHills(Point p, Turn turn) {
  struct Hill {
    Point top;
    double height, width;
  };
  static constexpr std::array<Hill, 5> kHills{{{{-0.25, 0.35}, 1.0, 0.5},
                                               {{0.5, 0.1}, 0.75, 0.36},
                                               {{-0.5, -0.45}, 0.62, 0.3},
                                               {{0.3, -0.6}, 0.45, 0.27},
                                               {{0.1, 0.05}, -0.55, 0.3}}};
  const Point q = InFigure({1.13 * p.x, 1.13 * p.y}, turn);
  double height = 0;
  for (const Hill& hill : kHills) {
    const double rr = Square(q.x - hill.top.x) + Square(q.y - hill.top.y);
    height += hill.height * std::exp(-rr / Square(hill.width));
  }
  return height;
}

double SchwarzSurface(Point p, Turn turn) {
  constexpr double kPeriod = 1.15;
  const Point q = InFigure(p, turn);
  if (!InDisc(p)) return 0;
  const double sum = std::cos(kTwoPi / kPeriod * q.x) + std::cos(kTwoPi / kPeriod * q.y);
  return std::acos(std::clamp(-sum, -1.0, 1.0)) / kPi;
}

double MoebiusBand(Point p, Turn turn) {
  constexpr double kRing = 0.63, kHalfWidth = 0.29, kThickness = 0.08;
  constexpr double kStart = 0.6;  // half the angle at which the band lies flat, negative
  const Point q = InFigure(p, turn);
  const Polar at = ToPolar(q);
  const double across = at.r - kRing;
  if (std::abs(across) >= kHalfWidth + kThickness) return 0;
  // The section of the band is a segment with slope tan(half), rounded by the thickness. It is
  // covered from above by a line over the segment, or by a round end.
  const double half = at.angle / 2 + kStart;
  const double cosine = std::cos(half);
  const double flat = std::abs(cosine);
  const double steep = cosine < 0 ? -std::sin(half) : std::sin(half);
  double z = -1;
  if (flat > 1e-6 && std::abs(across + kThickness * steep) <= kHalfWidth * flat) {
    z = (across * steep + kThickness) / flat;
  }
  for (const double end : {-kHalfWidth, kHalfWidth}) {
    const double off = (across - end * flat) / kThickness;
    if (std::abs(off) < 1) z = std::max(z, end * steep + kThickness * Dome(off));
  }
  return z > -1 ? (z + 0.41 - 0.2 * q.y) / 0.79 : 0;
}

double Sombrero(Point p, Turn turn) {
  constexpr double kWaves = 7.7;
  const Point q = InFigure(p, turn);
  const double r = Length(q.x, 1.25 * q.y);
  if (r >= 1) return 0;
  const double phase = kWaves * r;
  return 0.28 + 0.72 * (phase > 1e-6 ? std::sin(phase) / phase : 1.0);
}

double EggCrate(Point p, Turn turn) {
  constexpr double kWave = 7.2;
  const Point q = InFigure(p, turn);
  if (!InDisc(p)) return 0;
  const double dome = 0.12 + 0.5 * (1 - q.x * q.x - q.y * q.y);
  return dome + 0.19 * (1 + std::cos(kWave * q.x) * std::cos(kWave * q.y));
}

}  // namespace plenovia::figures
