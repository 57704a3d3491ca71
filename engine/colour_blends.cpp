#include "engine/colour_blends.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <span>

namespace plenovia {

namespace {

constexpr std::size_t kPairs = std::size_t{256} * 256;

// How often each pair of neighbours occurs, by left * 256 + right.
std::vector<std::uint32_t> CountPairs(const IndexedImage& picture) {
  std::vector<std::uint32_t> counts(kPairs);
  for (int y = 0; y < picture.height(); ++y) {
    const auto row = picture.Row(y);
    std::size_t left = row.back();
    for (const std::uint8_t right : row) {
      ++counts[left << 8 | right];
      left = right;
    }
  }
  return counts;
}

// The entries that must stay as they are.
std::array<bool, 256> Kept(const IndexedImage& picture) {
  std::array<bool, 256> kept{};
  for (const std::uint8_t index : picture.pixels()) kept[index] = true;
  // The markers and the caption.
  for (const Rgb drawn : {Rgb{0, 0, 0}, Rgb{255, 255, 0}, Rgb{0, 0, 128}}) {
    kept[picture.palette().Nearest(drawn)] = true;
  }
  return kept;
}

Rgb Blend(Rgb from, Rgb to, int step) {
  const auto mix = [step](int a, int b) {
    constexpr int kHalf = ColourBlends::kSteps / 2;
    const int sum = a * (ColourBlends::kSteps - step) + b * step;
    return static_cast<std::uint8_t>((sum + kHalf) / ColourBlends::kSteps);
  };
  return {mix(from.red, to.red), mix(from.green, to.green), mix(from.blue, to.blue)};
}

std::int64_t SquaredDistance(Rgb a, Rgb b) {
  const int red = a.red - b.red;
  const int green = a.green - b.green;
  const int blue = a.blue - b.blue;
  return red * red + green * green + blue * blue;
}

// Blends so alike that they share an entry.
struct Shade {
  Rgb colour;
  std::int64_t count = 0;
  std::int64_t distance = 0;  // squared, to its entry
  std::uint8_t entry = 0;
};

// By colour, with five bits of each primary.
class Shades {
 public:
  void Add(Rgb colour, std::uint32_t count) {
    std::int16_t& place = places_[Cell(colour)];
    if (place == 0) {
      shades_.push_back({.colour = colour});
      place = static_cast<std::int16_t>(shades_.size());
    }
    shades_[static_cast<std::size_t>(place) - 1].count += count;
  }
  std::span<Shade> all() { return shades_; }
  std::uint8_t EntryOf(Rgb colour) const {
    return shades_[static_cast<std::size_t>(places_[Cell(colour)]) - 1].entry;
  }

 private:
  static std::size_t Cell(Rgb c) {
    return static_cast<std::size_t>(c.red >> 3 << 10 | c.green >> 3 << 5 | c.blue >> 3);
  }
  std::vector<std::int16_t> places_ = std::vector<std::int16_t>(1 << 15);  // from 1
  std::vector<Shade> shades_;
};

// Gives each shade its nearest entry, and entries that may change a shade's colour.
void ChooseEntries(std::span<Shade> shades, const std::array<bool, 256>& kept, Palette& palette) {
  const auto offer = [&](int entry) {
    for (Shade& shade : shades) {
      const std::int64_t distance = SquaredDistance(shade.colour, palette[entry]);
      if (distance >= shade.distance) continue;
      shade.distance = distance;
      shade.entry = static_cast<std::uint8_t>(entry);
    }
  };
  for (Shade& shade : shades) shade.distance = SquaredDistance({0, 0, 0}, {255, 255, 255}) + 1;
  for (int entry = 0; entry < 256; ++entry) {
    if (kept[static_cast<std::size_t>(entry)]) offer(entry);
  }
  for (int entry = 0; entry < 256; ++entry) {
    if (kept[static_cast<std::size_t>(entry)]) continue;
    const auto loss = [](const Shade& shade) { return shade.count * shade.distance; };
    const auto worst = std::ranges::max_element(shades, {}, loss);
    if (worst == shades.end() || worst->distance == 0) return;
    palette.Set(entry, worst->colour);
    offer(entry);
  }
}

}  // namespace

ColourBlends::ColourBlends(const IndexedImage& picture)
    : palette_(picture.palette().Widened()), entries_(kPairs * kSteps) {
  const std::vector<std::uint32_t> counts = CountPairs(picture);
  const Palette original = palette_;
  const auto forEachBlend = [&](const auto& visit) {
    for (std::size_t pair = 0; pair < kPairs; ++pair) {
      const std::size_t left = pair >> 8;
      const std::size_t right = pair & 255;
      if (counts[pair] == 0 || left == right) continue;
      for (int step = 1; step < kSteps; ++step) {
        visit(pair, step,
              Blend(original[static_cast<int>(left)], original[static_cast<int>(right)], step));
      }
    }
  };
  Shades shades;
  forEachBlend([&](std::size_t pair, int, Rgb colour) { shades.Add(colour, counts[pair]); });
  ChooseEntries(shades.all(), Kept(picture), palette_);
  for (std::size_t pair = 0; pair < kPairs; ++pair) {
    const bool equal = pair >> 8 == (pair & 255);
    if (counts[pair] == 0 && !equal) continue;
    std::fill_n(entries_.begin() + static_cast<std::ptrdiff_t>(pair * kSteps), equal ? kSteps : 1,
                static_cast<std::uint8_t>(pair >> 8));
  }
  forEachBlend([&](std::size_t pair, int step, Rgb colour) {
    entries_[pair * kSteps + static_cast<std::size_t>(step)] = shades.EntryOf(colour);
  });
}

}  // namespace plenovia
