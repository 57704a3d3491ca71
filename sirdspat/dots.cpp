#include <array>

#include "platform/random.h"
#include "sirdspat/generators.h"

namespace plenovia {

namespace {

constexpr Torus kDotSize{160, 128};

// A field of squares, each of a colour of its own.
template <std::size_t N>
Tile Squares(Torus size, int side, const std::array<std::uint32_t, N>& colours,
             std::uint64_t seed) {
  return RenderTile(size, 1, [&](double x, double y) {
    const double pick =
        PixelGrain(seed, {size.width / side, size.height / side}, x / side, y / side);
    return Hex(colours[static_cast<std::size_t>(pick * N)]);
  });
}

}  // namespace

Tile InkDots(std::uint64_t seed) {
  return Squares<2>(kDotSize, 2, {0x1c1c28, 0xf6f1e7}, seed);
}

Tile GrayGrain(std::uint64_t seed) {
  return Squares<8>(
      kDotSize, 1, {0x16181c, 0x2b2e33, 0x44484e, 0x666a70, 0x8b8f94, 0xb1b4b8, 0xd6d8da, 0xf4f5f5},
      seed);
}

Tile HarbourDots(std::uint64_t seed) {
  return Squares<10>(kDotSize, 2,
                     {0x0b2f3f, 0x0f4c5c, 0x1f7a8c, 0x5fb3b3, 0xbfdbf7, 0xf7f3e3, 0xf2c14e,
                      0xe36414, 0x9a031e, 0x3c1642},
                     seed);
}

// Round beads of three pixels, lit from the upper left.
Tile GlassBeads(std::uint64_t seed) {
  static constexpr std::array<std::uint32_t, 9> kGlass = {
      0x7b2d8b, 0xc2388a, 0xee6c9c, 0xf7b2c4, 0x3d348b, 0x5a6ff0, 0x4cc9f0, 0xb8f2e6, 0xffd166};
  constexpr Torus kSize{162, 129};
  return RenderTile(kSize, 1, [&](double x, double y) {
    const double pick = PixelGrain(seed, {kSize.width / 3, kSize.height / 3}, x / 3, y / 3);
    const Tint glass = Hex(kGlass[static_cast<std::size_t>(pick * kGlass.size())]);
    const double u = 3 * Fraction(x / 3) - 1.5;
    const double v = 3 * Fraction(y / 3) - 1.5;
    const double light = 1.04 - 0.10 * (u + v) - 0.08 * (u * u + v * v);
    return Mix(glass * light, Hex(0xffffff), u + v < -1.5 ? 0.14 : 0.0);
  });
}

// A cloud of glowing gas with a star on nearly every pixel. As wide as the default gap: where soft
// clouds are cut, everyone sees it.
Tile Nebula(std::uint64_t seed) {
  constexpr Torus kSize{100, 128};
  const Noise gas(kSize, 50, 5, seed);
  const Noise dust(kSize, 34, 5, seed + 10);
  const Noise warmth(kSize, 50, 64, 3, seed + 20);
  const Ramp cold{0x070616, 0x14123f, 0x2b2a86, 0x3f7fc4, 0xa6e6f5};
  const Ramp warm{0x0d0518, 0x3a0f4d, 0x8b1e6b, 0xe8577e, 0xffd9a0};
  const Ramp starlight{0xffb26b, 0xfff3d6, 0xffffff, 0xcfe4ff, 0x9cc3ff};
  return RenderTile(kSize, 1, [&](double x, double y) {
    const double glow = Clamp01(0.36 + 0.42 * gas.At(x, y) - 0.35 * std::max(0.0, dust.At(x, y)));
    const double mix = SmoothStep(-0.35, 0.35, warmth.At(x, y) + 0.3 * gas.At(x + 50, y + 64));
    Tint colour = Mix(cold.At(glow), warm.At(glow), mix);
    const double grain = PixelGrain(seed + 30, kSize, x, y);
    colour = colour * (0.30 + 1.4 * grain);
    // Bright stars are few; the light of the brightest spills over on their neighbours.
    const auto star = [&](double dx, double dy) {
      const double rank = PixelGrain(seed + 40, kSize, x + dx, y + dy);
      return rank < 0.74 ? 0.0 : (rank - 0.74) / 0.26;
    };
    const double own = star(0, 0);
    double spill = 0;
    for (const auto& [dx, dy] : {std::array{1, 0}, {-1, 0}, {0, 1}, {0, -1}}) {
      const double light = star(dx, dy);
      if (light > 0.9) spill += 0.35 * (light - 0.9) / 0.1;
    }
    const double light = 1.1 * own * own * (0.45 + 0.45 * glow + 0.3 * own) + spill;
    return Mix(colour, starlight.At(PixelGrain(seed + 50, kSize, x, y)), Clamp01(light));
  });
}

}  // namespace plenovia
