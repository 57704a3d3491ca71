#include "viewing/stereo_pair.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <vector>

namespace plenovia {

namespace {

constexpr int kPartOfWidth = 30;

std::array<std::uint32_t, 256> ColoursOf(const Palette& palette) {
  std::array<std::uint32_t, 256> colours{};
  for (int i = 0; i < 256; ++i) {
    const Rgb c = palette[i];
    colours[static_cast<std::size_t>(i)] = OpaqueColour(c.red, c.green, c.blue);
  }
  return colours;
}

// How near each point is, in pixels by which its pair is closer.
std::vector<int> Nearness(std::span<const std::int32_t> levels, const SeparationTable& table) {
  constexpr std::int64_t kWidest = 1024;
  std::vector<int> nearness(levels.size());
  std::ranges::transform(levels, nearness.begin(), [&](std::int32_t level) {
    return static_cast<int>(-std::clamp<std::int64_t>(table(level), 1, kWidest));
  });
  return nearness;
}

// One row of a view: every point lands `shift` columns from where it is, and the nearest wins.
class ViewRow {
 public:
  explicit ViewRow(std::span<std::uint32_t> row) : row_(row), nearness_(row.size()) {}

  void Clear() { std::ranges::fill(nearness_, kNothing); }
  void Put(std::ptrdiff_t at, int nearness, std::uint32_t colour) {
    if (at < 0 || at >= std::ssize(nearness_)) return;
    const auto column = static_cast<std::size_t>(at);
    if (nearness_[column] >= nearness) return;
    nearness_[column] = nearness;
    row_[column] = colour;
  }
  // A gap takes the colours beside it of its farther end, mirrored.
  void FillGaps() {
    const std::size_t width = row_.size();
    for (std::size_t from = 0; from < width; ++from) {
      if (nearness_[from] != kNothing) continue;
      std::size_t end = from;
      while (end < width && nearness_[end] == kNothing) ++end;
      const bool hasLeft = from > 0;
      const bool hasRight = end < width;
      const bool takeLeft = hasLeft && (!hasRight || nearness_[from - 1] <= nearness_[end]);
      for (std::size_t x = from; x < end; ++x) {
        if (takeLeft) {
          row_[x] = row_[from - 1 - std::min(from - 1, x - from)];
        } else {
          row_[x] =
              hasRight ? row_[std::min(width - 1, end + (end - 1 - x))] : OpaqueColour(0, 0, 0);
        }
      }
      from = end;
    }
  }

 private:
  static constexpr int kNothing = std::numeric_limits<int>::min();

  std::span<std::uint32_t> row_;
  std::vector<int> nearness_;
};

int BrightnessOf(std::uint32_t colour) {
  const auto part = [colour](int shift) { return static_cast<int>(colour >> shift & 255U); };
  return (299 * part(16) + 587 * part(8) + 114 * part(0) + 500) / 1000;
}

}  // namespace

StereoPair CoverWithPattern(const LevelField& field, const IndexedImage& pattern,
                            const SeparationTable& separations) {
  StereoPair pair{RgbPicture(field.width(), field.height()),
                  RgbPicture(field.width(), field.height())};
  const auto colours = ColoursOf(pattern.palette());
  std::vector<std::vector<int>> rows;
  int nearest = std::numeric_limits<int>::min();
  int farthest = std::numeric_limits<int>::max();
  for (int y = 0; y < field.height(); ++y) {
    rows.push_back(Nearness(field.Row(y), separations));
    const auto [least, most] = std::ranges::minmax(rows.back());
    farthest = std::min(farthest, least);
    nearest = std::max(nearest, most);
  }
  const int depth = std::max(1, nearest - farthest);
  const int most = std::min(depth, std::max(2, field.width() / kPartOfWidth));
  for (int y = 0; y < field.height(); ++y) {
    const auto tile = pattern.Row(y % pattern.height());
    const auto& row = rows[static_cast<std::size_t>(y)];
    ViewRow left(pair.left.Row(y));
    ViewRow right(pair.right.Row(y));
    left.Clear();
    right.Clear();
    for (std::size_t x = 0; x < row.size(); ++x) {
      const int deviation = (row[x] - farthest) * most / depth;
      const std::uint32_t colour = colours[tile[x % tile.size()]];
      const auto at = static_cast<std::ptrdiff_t>(x);
      left.Put(at + deviation / 2, deviation, colour);
      right.Put(at - (deviation - deviation / 2), deviation, colour);
    }
    left.FillGaps();
    right.FillGaps();
  }
  return pair;
}

RgbPicture Anaglyph(const StereoPair& pair) {
  RgbPicture picture(pair.left.width, pair.left.height);
  std::ranges::transform(pair.left.pixels, pair.right.pixels, picture.pixels.begin(),
                         [](std::uint32_t left, std::uint32_t right) {
                           const auto red = static_cast<std::uint32_t>(BrightnessOf(left));
                           return 0xff000000U | red << 16 | (right & 0xffffU);
                         });
  return picture;
}

}  // namespace plenovia
