#include "platform/random.h"
#include "sirdspat/generators.h"
#include "sirdspat/scatter.h"

namespace plenovia {

namespace {

constexpr Torus kSize{100, 128};
using Petal = std::optional<Tint>;

// `count` stamps at random places, turned at random, the smaller ones on top.
std::vector<Stamps::Stamp> Strew(int count, double largest, double smallest, Random& random) {
  std::vector<Stamps::Stamp> stamps;
  for (int i = 0; i < count; ++i) {
    const double t = static_cast<double>(i) / count;
    stamps.push_back({0,
                      {random.Unit() * kSize.width, random.Unit() * kSize.height},
                      largest + (smallest - largest) * t,
                      random.Unit() * 2 * kPi});
  }
  return stamps;
}

// A leaf along u with midrib and veins: how light it is at (u, v), or nothing beside it.
std::optional<double> LeafShade(double u, double v, double breadth) {
  const double half = breadth * (1 - u * u) * (1 - 0.35 * u);
  const double side = std::abs(v);
  if (side > half) return std::nullopt;
  double shade = v > 0 ? 0.50 : 0.66;
  const double vein = Fraction((u - 0.9 * side) * 3.6);
  shade += vein < 0.30 ? 0.16 : 0.0;
  if (side < 0.075) shade = 0.92;
  return shade * (0.42 + 0.58 * SmoothStep(0.0, 0.16, half - side));
}

}  // namespace

// Cushions of tiny leaves with spore capsules.
Tile Moss(std::uint64_t seed) {
  Random random(seed);
  const Stamps leaves(kSize, Strew(2600, 5.2, 2.4, random));
  const Noise cushion(kSize, 30, 3, seed + 1);
  const Ramp shadeGreen{0x07160c, 0x14361c, 0x2f6b2a, 0x6ea336, 0xb9d85a, 0xeef7a8};
  const Ramp lightGreen{0x0c1a06, 0x2a4212, 0x5c7d1f, 0x9fb837, 0xdfe36a, 0xfdfbc0};
  return RenderTile(kSize, 3, [&](double x, double y) {
    const double height = cushion.At(x, y);
    return leaves.At(
        x, y, Hex(0x07160c), [&](const Stamps::Stamp& stamp, double u, double v) -> Petal {
          const auto number = static_cast<std::int64_t>(stamp.number);
          if (HashUnit(seed + 2, number) > 0.965) {
            if (u * u + v * v > 0.22) return std::nullopt;
            return Mix(Hex(0x8a2f14), Hex(0xffc27a), Clamp01(0.5 - 0.9 * (u + v)));
          }
          const std::optional<double> shade = LeafShade(u, v, 0.42);
          if (!shade) return std::nullopt;
          const double own = 0.55 + 0.75 * HashUnit(seed + 3, number);
          const double tone = *shade * own + 0.24 * height;
          return Mix(shadeGreen.At(tone), lightGreen.At(tone), HashUnit(seed + 4, number));
        });
  });
}

// A forest floor in October.
Tile AutumnLeaves(std::uint64_t seed) {
  Random random(seed);
  const Stamps leaves(kSize, Strew(620, 10.5, 6.0, random));
  const Ramp tints[] = {
      {0x3a0d08, 0x8f1d14, 0xd8402a, 0xff9a6a}, {0x4a1c06, 0xb04a0c, 0xf08a24, 0xffd28a},
      {0x4a3306, 0xb98a12, 0xf2c83a, 0xfff0a8}, {0x24260a, 0x5e6a1c, 0xa3b03c, 0xe4e89a},
      {0x2c1410, 0x6a3424, 0xa8654a, 0xe2b394}, {0x2e0a1c, 0x6e1638, 0xb23a5e, 0xf09aa6}};
  return RenderTile(kSize, 3, [&](double x, double y) {
    return leaves.At(
        x, y, Hex(0x1c0d08), [&](const Stamps::Stamp& stamp, double u, double v) -> Petal {
          const auto number = static_cast<std::int64_t>(stamp.number);
          const std::optional<double> shade =
              LeafShade(u, v, 0.38 + 0.16 * HashUnit(seed + 1, number));
          if (!shade) return std::nullopt;
          const Ramp& tint = tints[static_cast<std::size_t>(HashUnit(seed + 2, number) * 6)];
          const double grain = PixelGrain(seed + 3, kSize, x, y) - 0.5;
          return tint.At(*shade * (0.75 + 0.4 * HashUnit(seed + 4, number)) + 0.16 * grain +
                         0.06 * u);
        });
  });
}

// Millefleurs: small flowers in dark grass.
Tile Meadow(std::uint64_t seed) {
  Random random(seed);
  std::vector<Stamps::Stamp> plants = Strew(900, 6.5, 4.5, random);
  const std::size_t grasses = plants.size();
  for (const Point& point : ScatterPoints(kSize, 6.4, seed + 1)) {
    plants.push_back({0, point, 3.4 + 2.4 * random.Unit(), random.Unit() * 2 * kPi});
  }
  const Stamps meadow(kSize, std::move(plants));
  const Ramp grass{0x03110f, 0x0a2b22, 0x16503a, 0x3a8052, 0x93bf72};
  const Ramp petals[] = {{0x8f1537, 0xf0476a, 0xffc4c4}, {0x5a3fb0, 0x9c86f0, 0xe9e2ff},
                         {0xb8860b, 0xffd23f, 0xfff6c2}, {0x9a9ab8, 0xf4f1ff, 0xffffff},
                         {0x0f5fa8, 0x4db5f5, 0xd0f0ff}, {0xb34700, 0xff8c42, 0xffe0b8}};
  return RenderTile(kSize, 3, [&](double x, double y) {
    return meadow.At(
        x, y, Hex(0x03110f), [&](const Stamps::Stamp& stamp, double u, double v) -> Petal {
          const auto number = static_cast<std::int64_t>(stamp.number);
          if (stamp.number < grasses) {
            const std::optional<double> shade = LeafShade(u, v, 0.34);
            if (!shade) return std::nullopt;
            return grass.At(*shade * (0.45 + 0.65 * HashUnit(seed + 2, number)));
          }
          const auto kind = static_cast<std::size_t>(HashUnit(seed + 3, number) * 6);
          const double middle = std::sqrt(u * u + v * v);
          if (middle < 0.25) return Mix(Hex(0x6b3a06), Hex(0xffe066), Clamp01(0.7 - 1.6 * (u + v)));
          // Five petals are one petal seen from five sides.
          const double turn = 2 * kPi / 5;
          const double angle = RoughAngle(v, u);
          const double own = angle - turn * std::floor(angle / turn + 0.5);
          const double along = middle * ExactCos(own) - 0.56;
          const double across = middle * ExactSin(own);
          const double inside = 1 - (along * along / 0.19 + across * across / 0.115);
          if (inside < 0) return std::nullopt;
          const double shade =
              0.15 + 0.55 * SmoothStep(0.0, 0.35, inside) + 0.5 * along + 0.15 * (u < 0);
          return petals[kind].At(shade);
        });
  });
}

}  // namespace plenovia
