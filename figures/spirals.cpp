#include "figures/figures.h"

namespace plenovia::figures {

double SpiralRoad(Point p, Turn turn) {
  constexpr double kPitch = 0.36, kTurns = 2.95;
  const Polar at = ToPolar(InFigure(p, turn));
  const double turns = at.angle / kTwoPi + 0.5;
  const double lap = std::floor(at.r / kPitch - turns);
  const double travelled = lap + 1 + turns;
  return travelled < kTurns ? 1 - 0.9 * travelled / kTurns : 0;
}

double Nautilus(Point p, Turn turn) {
  constexpr double kLogMouth = 0.0953;   // of the outermost radius
  constexpr double kLogGrowth = 0.9933;  // of the growth from one turn of the shell to the next
  constexpr double kInner = 0.3704;      // the inner edge of a whorl by its outer one
  constexpr int kChambers = 11;          // in a turn
  const Point q = InFigure(p, turn);
  const Polar at = ToPolar({q.x - 0.08, q.y - 0.16});
  if (at.r < 0.02) return 0.3;
  if (at.r > 1.2) return 0;
  const double turns = Fraction(at.angle / kTwoPi + 0.2);
  const double lap = std::floor((std::log(at.r) - kLogMouth) / kLogGrowth - turns) + 1;
  if (lap > -1) return 0;
  const double logOuter = kLogMouth + kLogGrowth * (turns + lap);
  const double outer = std::exp(logOuter);
  const double across = (2 * at.r / outer - 1 - kInner) / (1 - kInner);
  const double septum = std::cos(kTwoPi * kChambers * (turns + 0.08 * across * across));
  const double mouth = lap < -1 ? 1 : std::min(1.0, 0.4 + 5 * (1 - turns));
  return 0.12 + mouth * (std::exp(0.6 * logOuter) * 0.81 * Dome(across) + 0.035 * septum);
}

double SpiralStaircase(Point p, Turn turn) {
  constexpr int kSteps = 12;
  const Polar at = ToPolar(InFigure(p, turn));
  if (at.r >= 1) return 0;
  if (at.r < 0.17) return 1;
  return (std::floor((at.angle / kTwoPi + 0.5) * kSteps) + 1) / kSteps;
}

double Sunflower(Point p, Turn turn) {
  constexpr int kSeeds = 60;
  constexpr double kGoldenAngle = 2.399963229728653;
  constexpr double kSpread = 0.116, kSeed = 0.105;
  struct Head {
    Point seeds[kSeeds];
  };
  static const Head kHead = [] {
    Head head;
    for (int n = 0; n < kSeeds; ++n) {
      const double r = kSpread * std::sqrt(n + 0.5);
      head.seeds[n] = {r * std::cos(n * kGoldenAngle), r * std::sin(n * kGoldenAngle)};
    }
    return head;
  }();
  const Point q = InFigure(p, turn);
  const double r = Length(q.x, q.y);
  if (r > 1) return 0;
  // Only the seeds of the ring around the point can be the nearest one.
  const int first = std::max(0, static_cast<int>(Square(std::max(0.0, r - kSeed) / kSpread)) - 1);
  const int last = std::min(kSeeds - 1, static_cast<int>(Square((r + kSeed) / kSpread)));
  double nearest = Square(kSeed);
  for (int n = first; n <= last; ++n) {
    const Point& seed = kHead.seeds[n];
    nearest = std::min(nearest, Square(q.x - seed.x) + Square(q.y - seed.y));
  }
  const double dome = 0.14 + 0.58 * (1 - 0.85 * r * r);
  return dome + 0.28 * Dome(std::sqrt(nearest) / kSeed);
}

}  // namespace plenovia::figures
