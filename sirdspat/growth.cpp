#include <utility>

#include "platform/random.h"
#include "sirdspat/generators.h"
#include "sirdspat/scatter.h"

namespace plenovia {

namespace {

constexpr Torus kSize{100, 128};

// Two substances that react and spread (Gray and Scott, 1984, in Pearson's form, 1993); what
// remains of the second after `steps`. Feed and kill differ from place to place, so that spots,
// worms and mazes stand side by side.
std::vector<double> ReactAndSpread(Torus size, int steps, std::uint64_t seed) {
  const auto width = static_cast<std::size_t>(size.width);
  const auto height = static_cast<std::size_t>(size.height);
  std::vector<double> u(width * height, 1.0);
  std::vector<double> v(width * height, 0.0);
  std::vector<double> feed(u.size());
  std::vector<double> kill(u.size());
  const Noise place(size, 40, 2, seed + 1);
  Random random(seed);
  for (std::size_t i = 0; i < u.size(); ++i) {
    const double x = static_cast<double>(i % width);
    const double y = static_cast<double>(i / width);
    const double mix = Clamp01(0.5 + 0.7 * place.At(x, y));
    feed[i] = 0.030 + 0.016 * mix;
    kill[i] = 0.0605 + 0.0025 * mix;
    if (HashUnit(seed + 2, static_cast<std::int64_t>(x / 3), static_cast<std::int64_t>(y / 3)) <
        0.2) {
      u[i] = 0.5;
      v[i] = 0.2 + 0.1 * random.Unit();
    }
  }
  std::vector<double> nextU(u.size());
  std::vector<double> nextV(v.size());
  for (int step = 0; step < steps; ++step) {
    for (std::size_t y = 0; y < height; ++y) {
      const std::size_t up = (y + height - 1) % height * width;
      const std::size_t here = y * width;
      const std::size_t down = (y + 1) % height * width;
      for (std::size_t x = 0; x < width; ++x) {
        const std::size_t l = (x + width - 1) % width;
        const std::size_t r = (x + 1) % width;
        const auto spread = [&](const std::vector<double>& f) {
          return 0.2 * (f[here + l] + f[here + r] + f[up + x] + f[down + x]) +
                 0.05 * (f[up + l] + f[up + r] + f[down + l] + f[down + r]) - f[here + x];
        };
        const std::size_t i = here + x;
        const double reaction = u[i] * v[i] * v[i];
        nextU[i] = u[i] + 0.46 * spread(u) - reaction + feed[i] * (1 - u[i]);
        nextV[i] = v[i] + 0.23 * spread(v) + reaction - (feed[i] + kill[i]) * v[i];
      }
    }
    std::swap(u, nextU);
    std::swap(v, nextV);
  }
  return v;
}

}  // namespace

// A skin of spots and worms.
Tile Labyrinth(std::uint64_t seed) {
  const std::vector<double> skin = ReactAndSpread(kSize, 3500, seed);
  const Noise tint(kSize, 13, 2, seed + 5);
  const Noise scale(kSize, 7, 2, seed + 7);
  const Ramp cool{0x0d1030, 0x2c2273, 0x6a3fb5, 0xe08bd0, 0xfff0dc};
  const Ramp warm{0x0d1030, 0x153f7a, 0x1f8fb0, 0x8fe0b0, 0xfffbd0};
  return RenderTile(kSize, 1, [&](double x, double y) {
    const auto at = [&](int dx, int dy) {
      const int px = (static_cast<int>(x) + dx + kSize.width) % kSize.width;
      const int py = (static_cast<int>(y) + dy + kSize.height) % kSize.height;
      const auto row = static_cast<std::size_t>(py) * static_cast<std::size_t>(kSize.width);
      return skin[row + static_cast<std::size_t>(px)];
    };
    const double slope = (at(1, 1) - at(-1, -1)) * 1.6;
    const double grain = PixelGrain(seed + 6, kSize, x, y) - 0.5;
    const double shade = 0.06 + 2.15 * at(0, 0) + slope + 0.16 * scale.At(x, y) + 0.30 * grain;
    return Mix(cool.At(shade), warm.At(shade), SmoothStep(-0.25, 0.25, tint.At(x, y)));
  });
}

// Polyps with rays, each a little animal of its own size and colour.
Tile Coral(std::uint64_t seed) {
  const Cells polyps(kSize, ScatterPoints(kSize, 8.6, seed));
  const Noise bend(kSize, 10, 2, seed + 1);
  const Noise tint(kSize, 50, 2, seed + 2);
  const Ramp flesh[] = {{0x3b0a2a, 0xa81f4f, 0xff6b6b, 0xffc1a1, 0xfff3e0},
                        {0x2a0a3b, 0x7a2a8f, 0xe06ac0, 0xffb3d9, 0xfff0f5},
                        {0x3b1a0a, 0xb5481f, 0xff9a4d, 0xffd79a, 0xfff8e0}};
  return RenderTile(kSize, 3, [&](double x, double y) {
    const Cells::Place place = polyps.At(x + 0.9 * bend.At(x, y), y + 0.9 * bend.At(y, x));
    const auto cell = static_cast<std::int64_t>(place.cell);
    const double rays = 7 + std::floor(6 * HashUnit(seed + 3, cell));
    const double angle =
        RoughAngle(place.offset.y, place.offset.x) + 6.3 * HashUnit(seed + 4, cell);
    const double ray = 0.5 + 0.5 * ExactSin(rays * angle);
    const double mouth = SmoothStep(1.7, 0.7, place.toCentre);
    const double rim = SmoothStep(0.0, 1.5, place.toBorder);
    const double body = SmoothStep(0.8, 4.5, place.toCentre);
    double shade = 0.80 - 0.30 * body + 0.42 * (ray - 0.5) * SmoothStep(1.0, 2.4, place.toCentre);
    shade = shade * (0.15 + 0.85 * rim) * (1 - 0.85 * mouth);
    shade += 0.14 * (PixelGrain(seed + 5, kSize, x, y) - 0.5);
    const double pick = HashUnit(seed + 6, cell) + 0.35 * tint.At(x, y);
    return flesh[pick < 0.4 ? 0 : pick < 0.72 ? 2 : 1].At(shade);
  });
}

}  // namespace plenovia
