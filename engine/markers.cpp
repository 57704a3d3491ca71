#include "engine/markers.h"

#include <algorithm>
#include <array>

namespace plenovia {

namespace {

constexpr int kTop = 5;
constexpr int kSmallSide = 5;
constexpr int kLeastLargeSide = 9;
constexpr Rgb kBlack{0, 0, 0};
constexpr Rgb kWhite{255, 255, 255};
constexpr Rgb kYellow{255, 255, 0};
constexpr std::array<Rgb, 6> kLargeColours = {
    {kYellow, {255, 0, 0}, {0, 0, 255}, {0, 255, 255}, {255, 0, 255}, {0, 255, 0}}};

struct Look {
  int side;
  int outline;
  std::uint8_t edge;  // palette entries
  std::uint8_t inside;
};

using Counts = std::array<std::int64_t, 256>;

Counts CountPixels(const IndexedImage& picture, int top, int bottom) {
  Counts counts{};
  for (int y = top; y < bottom; ++y) {
    for (const std::uint8_t index : picture.Row(y)) ++counts[index];
  }
  return counts;
}

int SquaredDistance(Rgb a, Rgb b) {
  const auto square = [](int d) { return d * d; };
  return square(a.red - b.red) + square(a.green - b.green) + square(a.blue - b.blue);
}

// How much of the pixels comes near to the colour: the sum of 1 / (1 + squared distance).
double Nearness(Rgb colour, const Counts& pixels, const Palette& palette) {
  double sum = 0;
  for (int i = 0; i < 256; ++i) {
    const auto count = static_cast<double>(pixels[static_cast<std::size_t>(i)]);
    if (count > 0) sum += count / (1.0 + SquaredDistance(colour, palette[i]));
  }
  return sum;
}

// The entry that holds the colour, in place of one that no pixel uses where there is one.
std::uint8_t EntryFor(Rgb colour, IndexedImage& picture, Counts& used) {
  Palette palette = picture.palette();
  const std::uint8_t nearest = palette.Nearest(colour);
  if (palette[nearest] == colour) return nearest;
  for (int i = palette.size() - 1; i >= 0; --i) {
    const auto index = static_cast<std::size_t>(i);
    if (used[index] > 0) continue;
    used[index] = 1;
    palette.Set(i, colour);
    picture.SetPalette(palette);
    return static_cast<std::uint8_t>(i);
  }
  return nearest;
}

Look LargeLook(IndexedImage& picture, std::int32_t gap) {
  const int side = std::max(kLeastLargeSide, gap / 8 | 1);
  const int bottom = std::min(kTop + side, picture.height());
  const Counts around = CountPixels(picture, std::min(kTop, bottom), bottom);
  const Rgb inside = *std::ranges::min_element(
      kLargeColours, {}, [&](Rgb colour) { return Nearness(colour, around, picture.palette()); });
  const bool isLight = SquaredDistance(inside, kBlack) > SquaredDistance(inside, kWhite);
  Counts used = CountPixels(picture, 0, picture.height());
  const std::uint8_t insideEntry = EntryFor(inside, picture, used);
  used[insideEntry] = 1;
  return {side, side / 6, EntryFor(isLight ? kBlack : kWhite, picture, used), insideEntry};
}

Look SmallLook(const IndexedImage& picture) {
  return {kSmallSide, 1, picture.palette().Nearest(kBlack), picture.palette().Nearest(kYellow)};
}

}  // namespace

void DrawMarkers(IndexedImage& picture, std::int32_t gap, MarkerSize size) {
  const Look look = size == MarkerSize::kLarge ? LargeLook(picture, gap) : SmallLook(picture);
  for (const int centre : {picture.width() / 2 - gap / 2, picture.width() / 2 + gap / 2}) {
    for (int j = 0; j < look.side; ++j) {
      for (int i = 0; i < look.side; ++i) {
        const int x = centre - look.side / 2 + i;
        const int y = kTop + j;
        if (x < 0 || x >= picture.width() || y >= picture.height()) continue;
        const int depth = std::min({i, j, look.side - 1 - i, look.side - 1 - j});
        picture.Row(y)[static_cast<std::size_t>(x)] =
            depth < look.outline ? look.edge : look.inside;
      }
    }
  }
}

}  // namespace plenovia
