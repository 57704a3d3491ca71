#include "figures/figures.h"

namespace plenovia::figures {
namespace {

// Strands that run around the centre and weave: r = ring + swing cos t, z = lift sin(weave t) with
// t = (bights * angle + 2 pi k) / leads for each of the leads k.
struct Braid {
  int bights, leads, weave;
  Turn nextLead;  // by 2 pi / leads
  double ring, swing, lift, tube;
};

// The top of the tubes about the strands at a point. The distance from a strand is taken from its
// tangent at the point's angle, which is close when the tube is thin.
double BraidHeight(const Braid& braid, Point p) {
  const Polar at = ToPolar(p);
  if (std::abs(at.r - braid.ring) > braid.swing + braid.tube) return 0;
  const double pitch = static_cast<double>(braid.bights) / braid.leads;
  Turn t{std::cos(pitch * at.angle), std::sin(pitch * at.angle)};
  double top = -1;
  for (int k = 0; k < braid.leads; ++k, t = Combine(t, braid.nextLead)) {
    const double r = braid.ring + braid.swing * t.cos;
    const double drift = pitch * braid.swing * t.sin / r;
    const double qq = Square((at.r - r) / braid.tube) / (1 + drift * drift);
    if (qq >= 1) continue;
    Turn weave = t;
    for (int i = 1; i < braid.weave; ++i) weave = Combine(weave, t);
    top = std::max(top, braid.lift * weave.sin + braid.tube * std::sqrt(1 - qq));
  }
  return top > -1 ? 0.1 + 0.9 * (top + braid.lift) / (2 * braid.lift + braid.tube) : 0;
}

}  // namespace

double Trefoil(Point p, Turn turn) {
  constexpr Braid kTrefoil{3, 2, 1, {-1, 0}, 0.6, 0.24, 0.12, 0.18};
  return BraidHeight(kTrefoil, InFigure(p, turn));
}

double TurksHead(Point p, Turn turn) {
  constexpr Braid kTurksHead{5, 3, 2, {-0.5, 0.8660254037844386}, 0.62, 0.27, 0.07, 0.12};
  return BraidHeight(kTurksHead, InFigure(p, turn));
}

double DoubleHelix(Point p, Turn turn) {
  constexpr double kPeriod = 1.5, kRadius = 0.52, kLift = 0.1, kTube = 0.15, kEnd = 1.12;
  constexpr double kRungs = 7, kRung = 0.06;  // rungs in a period
  if (std::abs(p.y) > kEnd || std::abs(p.x) > kRadius + 1.2 * kTube) return 0;
  const double wave = kTwoPi / kPeriod;
  // Sine and cosine of the strand's phase, wave * y plus the angle.
  const auto strand = [&](double y) {
    return Combine({std::cos(wave * y), std::sin(wave * y)}, turn);
  };
  const Turn here = strand(p.y);
  double top = -1;
  const double slope = std::sqrt(1 + Square(kRadius * wave * here.cos));
  for (const double side : {-1.0, 1.0}) {
    const double q = (p.x - side * kRadius * here.sin) / kTube / slope;
    if (std::abs(q) < 1) top = std::max(top, side * kLift * here.cos + kTube * Dome(q));
  }
  const double rungY = (std::floor(p.y * kRungs / kPeriod) + 0.5) * kPeriod / kRungs;
  if (std::abs(p.y - rungY) < kRung) {
    const Turn rung = strand(rungY);
    if (std::abs(p.x) < kRadius * std::abs(rung.sin)) {
      top = std::max(
          top, p.x / kRadius * kLift * rung.cos / rung.sin + kRung * Dome((p.y - rungY) / kRung));
    }
  }
  return top > -1 ? 0.1 + 0.9 * (top + kLift) / (2 * kLift + kTube) : 0;
}

}  // namespace plenovia::figures
