#include "codec/colour_reducer.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <tuple>

namespace plenovia {

namespace {

constexpr std::size_t kCells = std::size_t{1} << 18;
constexpr std::uint32_t kUsed = 1u << 24;  // marks a hash slot that holds a colour

std::size_t CellOf(Rgb c) {
  return (static_cast<std::size_t>(c.red >> 2) << 12) |
         (static_cast<std::size_t>(c.green >> 2) << 6) | static_cast<std::size_t>(c.blue >> 2);
}

std::uint32_t KeyOf(Rgb c) {
  return kUsed | static_cast<std::uint32_t>(c.red << 16 | c.green << 8 | c.blue);
}

Rgb ColourOf(std::uint32_t key) {
  return {static_cast<std::uint8_t>(key >> 16), static_cast<std::uint8_t>(key >> 8),
          static_cast<std::uint8_t>(key)};
}

bool Darker(Rgb a, Rgb b) {
  const auto rank = [](Rgb c) {
    return std::tuple(299 * c.red + 587 * c.green + 114 * c.blue, c.red, c.green, c.blue);
  };
  return rank(a) < rank(b);
}

std::uint8_t Rounded(float level) {
  return static_cast<std::uint8_t>(std::clamp(std::lround(level), 0L, 255L));
}

}  // namespace

ColourReducer::ColourReducer(int colours) : colours_(colours), cells_(kCells) {}

std::size_t ColourReducer::FindSlot(std::uint32_t key) const {
  std::size_t slot = (key * 2654435761u) >> 22;
  while (keys_[slot] != 0 && keys_[slot] != key) slot = (slot + 1) % keys_.size();
  return slot;
}

bool ColourReducer::Remember(Rgb colour) {
  const std::uint32_t key = KeyOf(colour);
  const std::size_t slot = FindSlot(key);
  if (keys_[slot] == key) return true;
  if (known_ == colours_) return false;
  ++known_;
  keys_[slot] = key;
  return true;
}

void ColourReducer::Count(std::span<const Rgb> row) {
  for (const Rgb c : row) {
    Cell& cell = cells_[CellOf(c)];
    ++cell.count;
    cell.red += c.red & 3u;
    cell.green += c.green & 3u;
    cell.blue += c.blue & 3u;
  }
  for (std::size_t i = 0; (gray_ || few_) && i < row.size(); ++i) {
    const Rgb c = row[i];
    if (i > 0 && c == row[i - 1]) continue;
    if (gray_) gray_ = c.red == c.green && c.green == c.blue;
    if (few_) few_ = Remember(c);
  }
}

void ColourReducer::BuildPalette() {
  if (gray_) {
    kind_ = Kind::kGray;
    palette_ = Palette::Grays();
  } else if (few_) {
    kind_ = Kind::kFew;
    KeepFewColours();
  } else {
    kind_ = Kind::kMany;
    FitManyColours();
  }
}

void ColourReducer::KeepFewColours() {
  std::vector<Rgb> colours;
  for (const std::uint32_t key : keys_) {
    if (key != 0) colours.push_back(ColourOf(key));
  }
  std::sort(colours.begin(), colours.end(), Darker);
  palette_ = Palette(colours);
  for (std::size_t i = 0; i < colours.size(); ++i) {
    indexes_[FindSlot(KeyOf(colours[i]))] = static_cast<std::uint8_t>(i);
  }
}

std::vector<WeightedColour> ColourReducer::Histogram() const {
  std::vector<WeightedColour> colours;
  for (std::size_t i = 0; i < kCells; ++i) {
    const Cell& cell = cells_[i];
    if (cell.count == 0) continue;
    const auto mean = [&](std::size_t high, std::uint32_t low) {
      return static_cast<float>((high & 63) * 4) +
             static_cast<float>(low) / static_cast<float>(cell.count);
    };
    colours.push_back({{mean(i >> 12, cell.red), mean(i >> 6, cell.green), mean(i, cell.blue)},
                       static_cast<float>(cell.count)});
  }
  return colours;
}

void ColourReducer::FitManyColours() {
  const std::vector<WeightedColour> colours = Histogram();
  const ColourClusters clusters = FitClusters(colours, static_cast<std::size_t>(colours_));

  std::vector<Rgb> entries;
  for (const Colour& centre : clusters.centres) {
    entries.push_back({Rounded(centre[0]), Rounded(centre[1]), Rounded(centre[2])});
  }
  std::vector<std::size_t> order(entries.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  std::sort(order.begin(), order.end(),
            [&](std::size_t a, std::size_t b) { return Darker(entries[a], entries[b]); });
  std::vector<std::uint8_t> place(entries.size());
  std::vector<Rgb> sorted;
  for (const std::size_t i : order) {
    place[i] = static_cast<std::uint8_t>(sorted.size());
    sorted.push_back(entries[i]);
  }
  palette_ = Palette(sorted);

  nearest_.assign(kCells, 0);
  std::size_t next = 0;
  for (std::size_t i = 0; i < kCells; ++i) {
    if (cells_[i].count != 0) nearest_[i] = place[clusters.members[next++]];
  }
}

void ColourReducer::Map(std::span<const Rgb> row, std::span<std::uint8_t> indexes) const {
  switch (kind_) {
    case Kind::kGray:
      std::transform(row.begin(), row.end(), indexes.begin(), [](Rgb c) { return c.green; });
      return;
    case Kind::kFew:
      for (std::size_t i = 0; i < row.size(); ++i) {
        const bool again = i > 0 && row[i] == row[i - 1];
        indexes[i] = again ? indexes[i - 1] : indexes_[FindSlot(KeyOf(row[i]))];
      }
      return;
    case Kind::kMany:
      std::transform(row.begin(), row.end(), indexes.begin(),
                     [&](Rgb c) { return nearest_[CellOf(c)]; });
      return;
  }
}

}  // namespace plenovia
