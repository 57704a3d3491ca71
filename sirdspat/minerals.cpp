#include "sirdspat/generators.h"
#include "sirdspat/scatter.h"

namespace plenovia {

namespace {

constexpr Torus kSize{100, 128};

}  // namespace

// Grains of feldspar, quartz and mica.
Tile Granite(std::uint64_t seed) {
  const Cells grains(kSize, ScatterPoints(kSize, 2.7, seed));
  const Noise bend(kSize, 5, 2, seed + 1);
  const Noise flow(kSize, 40, 3, seed + 2);
  const Ramp feldspar{0x9c5f53, 0xd0978a, 0xf0cfc0};
  const Ramp quartz{0x8d8a8c, 0xc9c5c3, 0xfaf6f0};
  const Ramp mica{0x17151a, 0x2d2a31, 0x57525a};
  return RenderTile(kSize, 3, [&](double x, double y) {
    const Cells::Place place = grains.At(x + 1.2 * bend.At(x, y), y + 1.2 * bend.At(y, x + 50));
    const auto cell = static_cast<std::int64_t>(place.cell);
    const double kind = HashUnit(seed + 3, cell) + 0.22 * flow.At(x, y);
    const double shade = HashUnit(seed + 4, cell) * 0.8 + 0.2 * PixelGrain(seed + 5, kSize, x, y);
    if (kind < 0.27) return mica.At(shade);
    return kind < 0.63 ? quartz.At(shade) : feldspar.At(shade);
  });
}

// Bands of green about many centres; no two of the same width.
Tile Malachite(std::uint64_t seed) {
  const Cells centres(kSize, ScatterPoints(kSize, 21, seed));
  const Noise bend(kSize, 20, 3, seed + 1);
  const Noise bend2(kSize, 20, 3, seed + 2);
  const Noise fine(kSize, 6, 2, seed + 3);
  const Ramp green{0x021f1a, 0x06463a, 0x0b7a5a, 0x2fb484, 0x8fe3b8, 0xe2f7dc};
  return RenderTile(kSize, 3, [&](double x, double y) {
    const Cells::Place place =
        centres.At(x + 5.5 * bend.At(x, y) + 0.5 * fine.At(x, y), y + 5.5 * bend2.At(x, y));
    const auto cell = static_cast<std::int64_t>(place.cell);
    // A random walk of tones from the centre outwards, read with soft steps.
    const double ring = place.toCentre / 1.6 + 40 * HashUnit(seed + 4, cell);
    const auto tone = [&](double step) {
      return HashUnit(seed + 5 + place.cell, static_cast<std::int64_t>(step));
    };
    const double base = std::floor(ring);
    const double soft = SmoothStep(0.25, 0.75, ring - base);
    double shade = tone(base) * (1 - soft) + tone(base + 1) * soft;
    shade = 0.06 + 0.82 * shade + 0.10 * fine.At(x, y);
    shade *= 0.45 + 0.55 * SmoothStep(0.0, 1.3, place.toBorder);
    return green.At(shade + 0.10 * (PixelGrain(seed + 6, kSize, x, y) - 0.5));
  });
}

// Grains of many rocks, each a pixel or two.
Tile BeachSand(std::uint64_t seed) {
  constexpr Torus kBeach{160, 128};
  const Cells grains(kBeach, ScatterPoints(kBeach, 2.0, seed));
  const Noise dune(kBeach, 40, 2, seed + 1);
  const Ramp sand{0x7a5230, 0xa97c4f, 0xcfa673, 0xe6c899, 0xf8e9c9};
  const Ramp shell{0xf3b79b, 0xfff3e6};
  const Ramp dark{0x33231a, 0x5e4632};
  return RenderTile(kBeach, 2, [&](double x, double y) {
    const Cells::Place place = grains.At(x, y);
    const auto cell = static_cast<std::int64_t>(place.cell);
    const double kind = HashUnit(seed + 2, cell);
    const double shade = HashUnit(seed + 3, cell);
    const double round = -0.10 * (place.offset.x + place.offset.y);
    if (kind < 0.07) return dark.At(shade);
    if (kind > 0.93) return shell.At(shade);
    return sand.At(0.08 + 0.72 * shade + 0.22 * dune.At(x, y) + round);
  });
}

// River pebbles, wet, with veins and speckles.
Tile Pebbles(std::uint64_t seed) {
  const Cells stones(kSize, ScatterPoints(kSize, 7.6, seed));
  const Noise bend(kSize, 8, 2, seed + 1);
  const Noise bend2(kSize, 8, 2, seed + 2);
  const Noise vein(kSize, 7, 3, seed + 3);
  const Ramp rocks[] = {
      {0x1f2a33, 0x4b6472, 0x9db7c2, 0xe6f1f2}, {0x2c1d1a, 0x7c4a3a, 0xc98a6b, 0xf4d6bd},
      {0x23262b, 0x5b6069, 0xa3a7ad, 0xeceef0}, {0x2a2615, 0x78693e, 0xc2ae74, 0xf5ebc6},
      {0x14211f, 0x3c5c55, 0x84a99c, 0xdbefe4}, {0x2a1521, 0x6e3f55, 0xb98398, 0xf0d3da}};
  return RenderTile(kSize, 3, [&](double x, double y) {
    const Cells::Place place = stones.At(x + 1.3 * bend.At(x, y), y + 1.3 * bend2.At(x, y));
    const auto cell = static_cast<std::int64_t>(place.cell);
    const Ramp& rock = rocks[static_cast<std::size_t>(HashUnit(seed + 4, cell) * 6)];
    const double turn = HashUnit(seed + 7, cell) * 50;
    const double streak = vein.At(x * 1.0 + turn, y * 1.0 - turn);
    const double dome = SmoothStep(0.0, 3.2, place.toBorder);
    const double light = -(place.offset.x + 1.2 * place.offset.y) / 16;
    double shade = 0.26 + 0.34 * HashUnit(seed + 5, cell) + light + 0.24 * streak +
                   0.26 * (PixelGrain(seed + 6, kSize, x, y) - 0.5);
    shade *= 0.12 + 0.88 * dome;
    const double glint = SmoothStep(
        2.2, 0.6, std::abs(place.offset.x + 1.7) * 1.2 + std::abs(place.offset.y + 2.0) * 1.2);
    return rock.At(shade + 0.35 * glint * dome);
  });
}

}  // namespace plenovia
