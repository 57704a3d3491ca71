#include "engine/tests/stereogram_truth.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdlib>
#include <span>

#include "engine/separation.h"
#include "engine/tests/plain_shift.h"
#include "platform/random.h"

namespace plenovia {

namespace {

constexpr int kEdgeDistance = 12;

std::span<const std::int32_t> RowOf(const LevelPicture& levels, int y) {
  return std::span(levels.levels)
      .subspan(levels.Index(0, y), static_cast<std::size_t>(levels.width));
}

// 1 for each pixel of the picture within 12 rows and columns of an edge.
std::vector<std::uint8_t> NearEdges(const LevelPicture& levels, const StereogramRule& rule) {
  std::vector<std::uint8_t> near(levels.levels.size());
  const auto mark = [&](int x, int y) {
    for (int v = std::max(0, y - kEdgeDistance);
         v <= std::min(levels.height - 1, y + kEdgeDistance); ++v) {
      const int left = std::max(0, x - kEdgeDistance);
      const int right = std::min(levels.width - 1, x + kEdgeDistance);
      std::fill_n(near.begin() + static_cast<std::ptrdiff_t>(levels.Index(left, v)),
                  right - left + 1, std::uint8_t{1});
    }
  };
  const auto edge = [&](std::int32_t a, std::int32_t b) {
    const auto separation = [&](std::int32_t level) {
      return SeparationFromLevel(level, rule.settings, rule.kind, levels.width);
    };
    return a != b && (std::abs(a - b) > 1 || std::abs(separation(a) - separation(b)) > 2);
  };
  for (int y = 0; y < levels.height; ++y) {
    for (int x = 0; x < levels.width; ++x) {
      const std::int32_t level = levels.At(x, y);
      if (x > 0 && edge(level, levels.At(x - 1, y))) mark(x, y);
      if (y > 0 && edge(level, levels.At(x, y - 1))) mark(x, y);
    }
  }
  return near;
}

// The left column of the pair that speaks for column x.
std::int64_t LeftOf(int x, std::int64_t separation, const StereogramRule& rule) {
  const bool centred = ScanMethodOf(rule.settings.scanMethod).anchor == RevealAnchor::kCentre;
  return centred ? x - (separation >> 1) : x - separation;
}

// Rows of random pixels after the shift: the pairs that the method made hold the same pixel in all.
class ShiftedRows {
 public:
  ShiftedRows(std::span<const std::int32_t> levels, const StereogramRule& rule, Random& random) {
    for (auto& row : rows_) {
      row.resize(levels.size());
      for (auto& pixel : row) pixel = random.Byte();
      ShiftRow(row, levels, rule.settings.gapValue, rule.kind, rule.settings);
    }
  }
  bool Same(std::int64_t a, std::int64_t b) const {
    return std::all_of(rows_.begin(), rows_.end(), [&](const auto& row) {
      return row[static_cast<std::size_t>(a)] == row[static_cast<std::size_t>(b)];
    });
  }

 private:
  std::array<std::vector<std::uint8_t>, 4> rows_;
};

}  // namespace

LevelPicture::LevelPicture(int theWidth, int theHeight)
    : width(theWidth),
      height(theHeight),
      levels(static_cast<std::size_t>(theWidth) * static_cast<std::size_t>(theHeight)) {}

IndexedImage MakeTestStereogram(const LevelPicture& levels, const IndexedImage& tile,
                                const StereogramRule& rule) {
  IndexedImage image = IndexedImage::Create(levels.width, levels.height, tile.palette()).value();
  for (int y = 0; y < levels.height; ++y) {
    const auto row = image.Row(y);
    const auto source = tile.Row(y % tile.height());
    for (std::size_t x = 0; x < row.size(); ++x) row[x] = source[x % source.size()];
    ShiftRow(row, RowOf(levels, y), rule.settings.gapValue, rule.kind, rule.settings);
  }
  return image;
}

RevealScore ScoreReveal(const RevealedDepth& revealed, const LevelPicture& levels,
                        const StereogramRule& rule) {
  RevealScore score;
  Random random(1);
  const std::vector<std::uint8_t> near = NearEdges(levels, rule);
  for (int y = 0; y < revealed.height; ++y) {
    const ShiftedRows rows(RowOf(levels, y), rule, random);
    for (int x = 0; x < revealed.width; ++x) {
      const std::int64_t separation =
          SeparationFromLevel(levels.At(x, y), rule.settings, rule.kind, levels.width);
      const std::int64_t left = LeftOf(x, separation, rule);
      const std::int64_t right = left + separation;
      const bool inside = separation > 0 && left >= 0 && right < revealed.width;
      if (!inside || near[levels.Index(x, y)] != 0 || !rows.Same(left, right)) continue;
      const std::size_t index =
          static_cast<std::size_t>(y) * static_cast<std::size_t>(revealed.width) +
          static_cast<std::size_t>(x);
      ++score.counted;
      score.found += std::abs(revealed.separation[index] - separation) <= 1;
    }
  }
  return score;
}

}  // namespace plenovia
