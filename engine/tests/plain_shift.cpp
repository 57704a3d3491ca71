#include "engine/tests/plain_shift.h"

#include <algorithm>
#include <cstddef>

#include "engine/prepared_shift.h"

namespace plenovia {

namespace {

// The row as the rules see it: signed columns.
struct Line {
  std::span<std::uint8_t> row;
  std::span<const std::int32_t> depth;
  std::int64_t width() const { return static_cast<std::int64_t>(row.size()); }
  std::uint8_t& operator[](std::int64_t x) const { return row[static_cast<std::size_t>(x)]; }
  std::int64_t Level(std::int64_t x) const { return depth[static_cast<std::size_t>(x)]; }
};

// The numbers of the run.
struct Rules {
  Rules(std::int64_t width, std::int32_t gapPixels, SourceKind kind, const TSirdsSettings& settings)
      : gap(gapPixels),
        zmin(settings.zmin),
        range(std::int64_t{settings.zmax} - settings.zmin),
        levelShift(kind == SourceKind::kImage ? 256 : 64),
        levelScale(kind == SourceKind::kImage ? 1 : 4),
        reach(5 * width / 20) {
    far = 2 * range + zmin;
    near = 4 * range + zmin;
    if (range == 0) range = 1;
  }

  std::int64_t FeuchtSeparation(std::int64_t level) const {
    const std::int64_t d = level * levelScale;
    return d == near ? 0 : (far - d) * reach / (near - d);
  }

  std::int64_t gap;
  std::int64_t zmin;
  std::int64_t range;
  std::int64_t levelShift;
  std::int64_t levelScale;
  std::int64_t reach;
  std::int64_t far;
  std::int64_t near;
};

void ShiftLeftToRight(const Line& line, const Rules& rules) {
  for (std::int64_t x = rules.gap < 0 ? 0 : rules.gap; x < line.width(); ++x) {
    const std::int64_t source = x - rules.gap + line.Level(x) * rules.levelShift / rules.range;
    if (source >= 0 && source < line.width()) line[x] = line[source];
  }
}

void ShiftMcMahon(const Line& line, const Rules& rules) {
  const std::int64_t middle = line.width() / 2;
  const auto partner = [&](std::int64_t x) {
    return x - rules.gap + (line.Level(x) - rules.zmin) * (rules.gap / 2) / rules.range;
  };

  std::int64_t limit = line.width();
  std::int64_t last = 0;
  for (std::int64_t x = middle - 1; x >= 0; --x) {
    const std::int64_t target = partner(x);
    if (target < 0 || target >= limit) continue;
    line[target] = line[x];
    limit = target;
    for (std::int64_t i = target + 1; i < last; ++i) line[i] = line[i - 1];
    last = target;
  }

  std::int64_t previous = 0;
  for (std::int64_t x = middle; x < line.width(); ++x) {
    const std::int64_t source = partner(x);
    if (source < 0) continue;
    if (source > previous && source < line.width()) {
      line[x] = line[source];
      previous = source;
    } else {
      line[x] = line[x - 1];
    }
  }
}

void ShiftFeucht(const Line& line, const Rules& rules) {
  const std::int64_t middle = line.width() / 2;

  std::int64_t limit = line.width();
  std::int64_t last = 0;
  for (std::int64_t x = middle - 1; x >= 0; --x) {
    const std::int64_t s = rules.FeuchtSeparation(line.Level(x));
    const std::int64_t left = x - (s >> 1);
    const std::int64_t right = left + s;
    if (left < 0 || right < 0 || right >= line.width() || right >= limit) continue;
    line[left] = line[right];
    limit = right;
    for (std::int64_t i = left + 1; i < last; ++i) line[i] = line[right];
    last = left;
  }

  std::int64_t previous = 0;
  std::int64_t fill = line.width();
  for (std::int64_t x = middle; x < line.width(); ++x) {
    const std::int64_t s = rules.FeuchtSeparation(line.Level(x));
    const std::int64_t left = x - (s >> 1);
    const std::int64_t right = left + s;
    const bool inside = left >= 0 && left < line.width() && right >= 0 && right < line.width();
    if (!inside || left <= previous) continue;
    line[right] = line[left];
    previous = left;
    for (std::int64_t i = fill + 1; i < right; ++i) line[i] = line[left];
    fill = right;
  }
}

void ShiftSmooth(const Line& line, std::int32_t gap, SourceKind kind,
                 const TSirdsSettings& settings) {
  const int width = static_cast<int>(line.width());
  ShiftBuffers row(width);
  std::ranges::copy(line.row, row.pixels().begin());
  std::ranges::copy(line.depth.first(line.row.size()), row.levels().begin());
  kSmoothMethod.prepare({width, gap, kind, settings})->Shift(row);
  std::ranges::copy(row.pixels(), line.row.begin());
}

}  // namespace

void ShiftRow(std::span<std::uint8_t> row, std::span<const std::int32_t> depth, std::int32_t gap,
              SourceKind kind, const TSirdsSettings& settings) {
  if (row.size() < 2 || depth.size() < row.size()) return;
  const Line line{row, depth};
  const Rules rules(line.width(), gap, kind, settings);
  switch (settings.scanMethod) {
    case kLeftToRight:
      ShiftLeftToRight(line, rules);
      break;
    case kMcMahon:
      ShiftMcMahon(line, rules);
      break;
    case kFeucht:
      ShiftFeucht(line, rules);
      break;
    case kSmooth:
      ShiftSmooth(line, gap, kind, settings);
      break;
    default:
      break;
  }
}

}  // namespace plenovia
