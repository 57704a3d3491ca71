#include <array>

#include "sirdspat/generators.h"
#include "sirdspat/scatter.h"

namespace plenovia {

namespace {

constexpr Torus kSize{100, 128};

}  // namespace

// Upright grain with eyes around which it flows, and dark pores.
Tile Walnut(std::uint64_t seed) {
  const Noise flow(kSize, 24, 55, 2, seed);
  const Noise fibre(kSize, 2.4, 22, 2, seed + 1);
  const Noise pores(kSize, 1.7, 9, 1, seed + 2);
  const Noise warmth(kSize, 30, 50, 2, seed + 3);
  const Ramp wood{0x24130c, 0x4b2a18, 0x7d4b2a, 0xb27a48, 0xdcae78, 0xf3d9ac};
  return RenderTile(kSize, 2, [&](double x, double y) {
    const double ring = x * 0.36 + 6.5 * flow.At(x, y);
    // Years of different width: the tone of each is drawn anew.
    const double year = std::floor(ring);
    const auto tone = [&](double of) {
      const double wrapped = of - 36 * std::floor(of / 36);
      return HashUnit(seed + 4, static_cast<std::int64_t>(wrapped));
    };
    const double soft = SmoothStep(0.0, 1.0, ring - year);
    double shade = 0.22 + 0.42 * (tone(year) * (1 - soft) + tone(year + 1) * soft);
    shade += 0.24 * fibre.At(x, y) + 0.14 * warmth.At(x, y);
    shade += 0.12 * (PixelGrain(seed + 5, kSize, x, y) - 0.5);
    if (pores.At(x, y) > 0.42) shade -= 0.22;
    return wood.At(shade);
  });
}

// Tweed: yarns of many wools, over and under each other by chance.
Tile Tweed(std::uint64_t seed) {
  static constexpr std::array<std::uint32_t, 8> kWool = {0x26364d, 0x3f5f7f, 0x6d8fa3, 0xc9cfc6,
                                                         0x8a5a44, 0x5b3a3a, 0xb8894f, 0x46604f};
  constexpr Torus kCloth{150, 128};
  const Noise fold(kCloth, 46, 2, seed);
  const auto wool = [](double pick) {
    return Hex(kWool[std::min<std::size_t>(static_cast<std::size_t>(pick * 8), 7)]);
  };
  return RenderTile(kCloth, 2, [&](double x, double y) {
    const double warp = std::floor(x / 2);
    const double weft = std::floor(y / 2);
    const auto column = static_cast<std::int64_t>(warp);
    const auto row = static_cast<std::int64_t>(weft);
    // Yarn changes its colour along its length, as homespun does.
    const auto length = [](std::int64_t along, int part) { return along / part; };
    const bool over = HashUnit(seed + 1, column, row) < 0.5;
    const Tint yarn = over ? wool(HashUnit(seed + 2, column, length(row + column % 5, 4) % 16))
                           : wool(HashUnit(seed + 3, row, length(column + row % 5, 4) % 18));
    const double across = over ? Fraction(x / 2) : Fraction(y / 2);
    const double round = 0.72 + 0.5 * (1 - 4 * (across - 0.5) * (across - 0.5));
    const double fluff = 0.8 + 0.4 * PixelGrain(seed + 4, kCloth, x, y);
    return yarn * (round * fluff * (1 + 0.12 * fold.At(x, y)));
  });
}

// Sunlight on the floor of a shallow sea.
Tile Lagoon(std::uint64_t seed) {
  const Cells coarse(kSize, ScatterPoints(kSize, 10.5, seed));
  const Cells fine(kSize, ScatterPoints(kSize, 5.6, seed + 1));
  const Noise bend(kSize, 16, 3, seed + 2);
  const Noise bend2(kSize, 16, 3, seed + 3);
  const Noise depth(kSize, 45, 3, seed + 4);
  const Ramp water{0x04253f, 0x06486b, 0x0a7f97, 0x1fb5b5, 0x7fe3d0, 0xf4fff2};
  return RenderTile(kSize, 3, [&](double x, double y) {
    const double dx = 3.5 * bend.At(x, y);
    const double dy = 3.5 * bend2.At(x, y);
    const double web = SmoothStep(1.9, 0.0, coarse.At(x + dx, y + dy).toBorder);
    const double veil = SmoothStep(1.6, 0.0, fine.At(x - dx, y + 0.6 * dy).toBorder);
    const double ripple = PixelGrain(seed + 5, kSize, x, y) - 0.5;
    return water.At(0.24 + 0.20 * depth.At(x, y) + 0.42 * web * web + 0.26 * veil +
                    0.22 * web * veil + 0.16 * ripple);
  });
}

}  // namespace plenovia
