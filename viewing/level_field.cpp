#include "viewing/level_field.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace plenovia {

namespace {

// The middle of part `at` of `parts` equal parts of 0..size-1.
int NearestOf(int at, int parts, int size) {
  return static_cast<int>((2 * std::int64_t{at} + 1) * size / (2 * std::int64_t{parts}));
}

}  // namespace

LevelField::LevelField(int width, int height)
    : width_(width > 0 && height > 0 ? width : 0),
      height_(width_ > 0 ? height : 0),
      levels_(Offset(height_)) {
  std::fill(levels_.begin(), levels_.end(), 0);
}

void LevelField::LevelRow(int y, std::span<std::int32_t> levels) const {
  std::fill(levels.begin(), levels.end(), 0);
  if (y < 0 || y >= height_) return;
  const auto row = Row(y);
  std::copy_n(row.begin(), std::min(row.size(), levels.size()), levels.begin());
}

FieldSize FitInto(FieldSize size, FieldSize room) {
  if (size.width < 1 || size.height < 1) return {1, 1};
  const double scale = std::min({1.0, static_cast<double>(room.width) / size.width,
                                 static_cast<double>(room.height) / size.height});
  return {std::max(1, static_cast<int>(std::floor(size.width * scale))),
          std::max(1, static_cast<int>(std::floor(size.height * scale)))};
}

LevelField ReadLevels(const DepthSource& source, FieldSize size, FieldSize sampled) {
  LevelField field(sampled.width, sampled.height);
  if (field.empty() || size.width < 1 || size.height < 1) return field;
  const bool whole = sampled.width == size.width;
  std::vector<std::size_t> columns;
  std::vector<std::int32_t> row;
  if (!whole) {
    row.resize(static_cast<std::size_t>(size.width));
    for (int x = 0; x < sampled.width; ++x) {
      columns.push_back(static_cast<std::size_t>(NearestOf(x, sampled.width, size.width)));
    }
  }
  for (int y = 0; y < sampled.height; ++y) {
    const int scanLine = size.height - 1 - NearestOf(y, sampled.height, size.height);
    const auto to = field.Row(y);
    if (whole) {
      source.BuildRow(scanLine, to);
      continue;
    }
    source.BuildRow(scanLine, row);
    std::transform(columns.begin(), columns.end(), to.begin(),
                   [&row](std::size_t column) { return row[column]; });
  }
  return field;
}

}  // namespace plenovia
