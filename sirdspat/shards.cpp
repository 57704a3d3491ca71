#include <array>

#include "platform/random.h"
#include "sirdspat/generators.h"
#include "sirdspat/scatter.h"

namespace plenovia {

namespace {

constexpr Torus kSize{100, 128};

}  // namespace

// Small panes in lead; the light plays in each.
Tile StainedGlass(std::uint64_t seed) {
  const Cells panes(kSize, ScatterPoints(kSize, 7.2, seed));
  const Noise streak(kSize, 2.6, 9, 2, seed + 1);
  const Noise glow(kSize, 36, 2, seed + 2);
  const Noise hue(kSize, 42, 2, seed + 3);
  const std::array<Ramp, 6> glass = {{{0x0a0f4a, 0x1f3fd0, 0x5f9bff, 0xd6ebff},
                                      {0x06383a, 0x0f8f8a, 0x4fe0c4, 0xe0fff2},
                                      {0x3a0640, 0x9a1fa8, 0xe86bf0, 0xffdcff},
                                      {0x4a0612, 0xc81d38, 0xff6a6a, 0xffe0d0},
                                      {0x5a2a00, 0xe07a00, 0xffb938, 0xfff2c0},
                                      {0x123a08, 0x3f9a1f, 0xa0e04f, 0xf4ffd0}}};
  return RenderTile(kSize, 3, [&](double x, double y) {
    const Cells::Place place = panes.At(x, y);
    const auto cell = static_cast<std::int64_t>(place.cell);
    const double pick =
        Fraction(HashUnit(seed + 4, cell) * 0.75 + 0.45 * hue.At(x * 0 + 7, 9) + 0.2);
    const Ramp& pane = glass[static_cast<std::size_t>(pick * 6)];
    const double lead = SmoothStep(0.45, 1.0, place.toBorder);
    const double rim = SmoothStep(0.8, 2.6, place.toBorder);
    double shade = 0.30 + 0.22 * HashUnit(seed + 5, cell) + 0.18 * rim + 0.30 * streak.At(x, y) +
                   0.12 * glow.At(x, y) - 0.018 * (place.offset.x + place.offset.y);
    shade += 0.16 * (PixelGrain(seed + 6, kSize, x, y) - 0.5);
    return Mix(Hex(0x0b0b10), pane.At(shade), lead);
  });
}

// Chips of marble in a light ground, large ones and what lies between them.
Tile Terrazzo(std::uint64_t seed) {
  const Cells large(kSize, ScatterPoints(kSize, 10.5, seed));
  const Cells small(kSize, ScatterPoints(kSize, 4.4, seed + 1));
  const Noise vein(kSize, 6, 3, seed + 2);
  const std::array<Ramp, 7> marbles = {{{0x1f4037, 0x3f7a68, 0x8fc0ad},
                                        {0x8f3a2c, 0xcf6a52, 0xf2b59e},
                                        {0x2a2d34, 0x545a66, 0x9aa2b0},
                                        {0xa8741a, 0xe0a83a, 0xf7dc9a},
                                        {0x2c4a6e, 0x5482b0, 0xa9c8e6},
                                        {0x9a7f70, 0xcdb3a2, 0xf0dfd2},
                                        {0x6a2c4a, 0xa8587e, 0xe0a6c0}}};
  const Ramp ground{0xb9aa98, 0xe6dccc, 0xfffaf0};
  const auto marble = [&](std::uint64_t salt, std::int64_t cell) -> const Ramp& {
    return marbles[static_cast<std::size_t>(HashUnit(seed + salt, cell) * marbles.size())];
  };
  return RenderTile(kSize, 3, [&](double x, double y) {
    const double grain = PixelGrain(seed + 9, kSize, x, y);
    const double shade = 0.5 + 0.55 * vein.At(x, y) + 0.42 * (grain - 0.5);
    const Cells::Place chip = large.At(x, y);
    const auto number = static_cast<std::int64_t>(chip.cell);
    const double grout = 0.7 + 1.6 * HashUnit(seed + 3, number);
    if (HashUnit(seed + 4, number) < 0.60 && chip.toBorder > grout) {
      return marble(5, number).At(shade);
    }
    const Cells::Place crumb = small.At(x, y);
    const auto little = static_cast<std::int64_t>(crumb.cell);
    if (HashUnit(seed + 6, little) < 0.62 && crumb.toBorder > 0.5)
      return marble(7, little).At(shade);
    return ground.At(0.35 + 0.65 * grain);
  });
}

// Paper triangles thrown over each other.
Tile Confetti(std::uint64_t seed) {
  static constexpr std::array<std::uint32_t, 12> kPaper = {0xf94144, 0xf3722c, 0xf8961e, 0xf9c74f,
                                                           0x90be6d, 0x43aa8b, 0x4d908e, 0x577590,
                                                           0x277da1, 0x5e548e, 0xbe95c4, 0xfdf0d5};
  Random random(seed);
  std::vector<Stamps::Stamp> papers;
  for (int i = 0; i < 1500; ++i) {
    papers.push_back({0,
                      {random.Unit() * kSize.width, random.Unit() * kSize.height},
                      4.0 + 3.5 * random.Unit(),
                      random.Unit() * 2 * kPi});
  }
  const Stamps heap(kSize, std::move(papers));
  return RenderTile(kSize, 3, [&](double x, double y) {
    return heap.At(
        x, y, Hex(0x1d2033),
        [&](const Stamps::Stamp& stamp, double u, double v) -> std::optional<Tint> {
          const double inside =
              std::min({u + 0.5, 0.5 - 0.5 * u + 0.866 * v, 0.5 - 0.5 * u - 0.866 * v});
          if (inside < 0) return std::nullopt;
          const auto number = static_cast<std::int64_t>(stamp.number);
          const Tint paper = Hex(kPaper[static_cast<std::size_t>(HashUnit(seed + 1, number) * 12)]);
          const double light = 0.66 + 0.5 * HashUnit(seed + 2, number) + 0.12 * u;
          const double edge = 0.62 + 0.38 * SmoothStep(0.0, 0.13, inside);
          return paper * (light * edge * (0.90 + 0.2 * PixelGrain(seed + 3, kSize, x, y)));
        });
  });
}

}  // namespace plenovia
