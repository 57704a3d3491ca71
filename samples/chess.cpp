#include <array>
#include <span>

#include "samples/ray_caster.h"
#include "samples/scenes.h"

namespace plenovia {

namespace {

struct Ridge {
  double height;
  double radius;
};

// A turned piece: the radius between the given heights goes evenly. A bound of the distance.
double Turned(const Vec& p, std::span<const Ridge> profile) {
  const double top = profile.back().height;
  const double h = std::clamp(p.y, 0.0, top);
  double radius = profile.front().radius;
  for (std::size_t i = 1; i < profile.size(); ++i) {
    if (h > profile[i].height) continue;
    const Ridge& a = profile[i - 1];
    const Ridge& b = profile[i];
    const double t = (h - a.height) / (b.height - a.height);
    radius = a.radius + (b.radius - a.radius) * t * t * (3 - 2 * t);
    break;
  }
  const double out = std::sqrt(p.x * p.x + p.z * p.z) - radius;
  const double above = std::abs(p.y - top / 2) - top / 2;
  return std::max(out * 0.4, above * 0.9);
}

constexpr Ridge kBase[] = {{0, 0.40},    {0.10, 0.41}, {0.16, 0.36}, {0.24, 0.34}, {0.34, 0.22},
                           {0.60, 0.16}, {0.85, 0.15}, {0.90, 0.24}, {0.98, 0.24}, {1.02, 0.15}};
constexpr Ridge kTall[] = {{0, 0.44},    {0.12, 0.45}, {0.20, 0.38}, {0.30, 0.37},
                           {0.45, 0.24}, {0.95, 0.17}, {1.35, 0.17}, {1.42, 0.30},
                           {1.50, 0.30}, {1.56, 0.19}, {1.90, 0.30}, {1.98, 0.29}};
constexpr Ridge kTower[] = {{0, 0.42},    {0.12, 0.43}, {0.20, 0.37}, {0.28, 0.36},
                            {0.42, 0.27}, {0.90, 0.24}, {1.0, 0.33},  {1.32, 0.34}};

double Pawn(const Vec& p) {
  return std::min(Turned(p, kBase), Sphere(p, {0, 1.16, 0}, 0.24));
}

double Bishop(const Vec& p) {
  const Vec q{p.x, p.y * 0.8, p.z};
  const double head = Ellipsoid(p, {0, 1.34, 0}, {0.24, 0.36, 0.24});
  const double cut = Box(TurnZ(p - Vec{0.16, 1.45, 0}, -0.6), {0, 0, 0}, {0.04, 0.25, 0.5});
  return std::min({Turned(q, kBase), std::max(head, -cut), Sphere(p, {0, 1.73, 0}, 0.075)});
}

double Rook(const Vec& p) {
  double tower = Turned(p, kTower);
  tower = std::max(tower, -std::max(Sphere({p.x, 0, p.z}, {0, 0, 0}, 0.2), 1.16 - p.y));
  for (int gap = 0; gap < 2; ++gap) {
    tower = std::max(tower, -Box(TurnY(p, gap * 1.5708 + 0.4), {0, 1.3, 0}, {0.07, 0.12, 0.6}));
  }
  return tower;
}

double Queen(const Vec& p) {
  double queen = std::min(Turned(p, kTall), Sphere(p, {0, 2.06, 0}, 0.13));
  for (int point = 0; point < 8; ++point) {
    const double angle = point * 0.7854;
    queen = std::min(queen, Sphere(p, {0.27 * std::cos(angle), 2.0, 0.27 * std::sin(angle)}, 0.08));
  }
  return queen;
}

double King(const Vec& p) {
  const double cross = std::min(Box(p, {0, 2.22, 0}, {0.065, 0.24, 0.065}, 0.02),
                                Box(p, {0, 2.27, 0}, {0.19, 0.065, 0.065}, 0.02));
  return std::min({Turned(p, kTall), Ellipsoid(p, {0, 1.98, 0}, {0.24, 0.1, 0.24}), cross});
}

double Knight(const Vec& p) {
  const Vec low{p.x, p.y, p.z};
  double foot = std::max(Turned(low, kBase), p.y - 0.36);
  double neck = Rod(p, {-0.05, 0.3, 0}, {-0.10, 1.15, 0}, 0.30, 0.22);
  neck = Join(neck, Rod(p, {-0.10, 1.22, 0}, {0.36, 0.98, 0}, 0.22, 0.14), 0.12);
  for (const double side : {1.0, -1.0}) {
    neck = Join(neck, Rod(p, {-0.16, 1.30, side * 0.10}, {-0.18, 1.54, side * 0.11}, 0.08, 0.03),
                0.04);
  }
  const double mane = Rod(p, {-0.30, 0.55, 0}, {-0.28, 1.25, 0}, 0.10, 0.09);
  return std::min(foot, Join(neck, mane, 0.06));
}

// Every other square stands a little higher.
double Board(const Vec& p) {
  const double square = std::sin(3.14159265 * p.x) * std::sin(3.14159265 * p.z);
  const double inlay = 0.03 * std::clamp(8 * square, -1.0, 1.0);
  const double top = Box(p, {0, -0.25, 0}, {4, 0.25, 4}, 0.02) - inlay * (p.y > -0.2 ? 1 : 0);
  return std::min(top * 0.7, Box(p, {0, -0.4, 0}, {4.5, 0.36, 4.5}, 0.1));
}

using Piece = double (*)(const Vec&);
struct Placed {
  Piece piece;
  double column;  // 0..7 from the left
  double row;     // 0..7 from the far side
  double turn;
};
constexpr std::array<Placed, 13> kGame = {{{Rook, 0, 0, 0},
                                           {King, 4, 1, 0.3},
                                           {Bishop, 5, 0, 0.5},
                                           {Pawn, 1, 2, 0},
                                           {Pawn, 6, 2, 0},
                                           {Knight, 2, 3, 0.5},
                                           {Queen, 5, 4, 0.2},
                                           {Pawn, 3, 4, 0},
                                           {Bishop, 1, 5, 0.8},
                                           {Knight, 6, 6, 2.5},
                                           {King, 3, 6, -0.3},
                                           {Rook, 1, 7, 0.2},
                                           {Pawn, 5, 7, 0}}};

double Scene(const Vec& world) {
  const Vec p = TurnY(world, 0.45);
  double all = std::min(Board(p), p.y + 0.8);
  for (const Placed& placed : kGame) {
    const Vec own = p - Vec{placed.column - 3.5, 0, placed.row - 3.5};
    const double beside = std::sqrt(own.x * own.x + own.z * own.z) - 0.55;
    all = std::min(all, beside > 0.3 ? beside : placed.piece(TurnY(own, placed.turn)));
  }
  return all;
}

}  // namespace

Result<IndexedImage> ChessEndgame() {
  return RenderDepth(
      Scene,
      {.target = {0, 0.35, 0}, .height = 7.4, .tilt = 0.62, .nearest = 4.9, .farthest = -4.9});
}

}  // namespace plenovia
