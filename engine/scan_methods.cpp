#include "engine/scan_methods.h"

#include <cstddef>

namespace plenovia {

namespace {

using Wide = std::int64_t;  // holds every product of 32-bit levels and sizes

// The row as the rules see it: signed columns.
struct Line {
  std::span<std::uint8_t> row;
  std::span<const std::int32_t> depth;
  Wide width() const { return static_cast<Wide>(row.size()); }
  std::uint8_t& operator[](Wide x) const { return row[static_cast<std::size_t>(x)]; }
  Wide Level(Wide x) const { return depth[static_cast<std::size_t>(x)]; }
};

void ShiftLeftToRight(const Line& line, Wide gap, Wide k, Wide range) {
  for (Wide x = gap < 0 ? 0 : gap; x < line.width(); ++x) {
    const Wide shift = line.Level(x) * k / range;
    const Wide source = x - (gap - shift);
    if (source >= 0 && source < line.width()) line[x] = line[source];
  }
}

void ShiftMcMahon(const Line& line, Wide gap, Wide zmin, Wide range) {
  const Wide middle = line.width() / 2;
  const Wide half = gap / 2;
  const auto partner = [&](Wide x) { return (x - gap) + (line.Level(x) - zmin) * half / range; };

  Wide limit = line.width();
  Wide last = 0;
  for (Wide x = middle - 1; x >= 0; --x) {
    const Wide target = partner(x);
    if (target < 0 || target >= limit) continue;
    line[target] = line[x];
    limit = target;
    for (Wide i = target + 1; i < last; ++i) line[i] = line[i - 1];
    last = target;
  }

  Wide previous = 0;
  for (Wide x = middle; x < line.width(); ++x) {
    const Wide source = partner(x);
    if (source < 0) continue;
    if (source > previous && source < line.width()) {
      line[x] = line[source];
      previous = source;
    } else {
      line[x] = line[x - 1];
    }
  }
}

void ShiftFeucht(const Line& line, Wide levelScale, Wide zmin, Wide range) {
  const Wide middle = line.width() / 2;
  const Wide a = 2 * range + zmin;
  const Wide b = 4 * range + zmin;
  const Wide c = 5 * line.width() / 20;
  const auto separation = [&](Wide x) {
    const Wide d = line.Level(x) * levelScale;
    return d == b ? 0 : (a - d) * c / (b - d);
  };

  Wide limit = line.width();
  Wide last = 0;
  for (Wide x = middle - 1; x >= 0; --x) {
    const Wide s = separation(x);
    const Wide left = x - (s >> 1);
    const Wide right = left + s;
    if (left < 0 || right < 0 || right >= line.width() || right >= limit) continue;
    line[left] = line[right];
    limit = right;
    for (Wide i = left + 1; i < last; ++i) line[i] = line[right];
    last = left;
  }

  Wide previous = 0;
  Wide fill = line.width();
  for (Wide x = middle; x < line.width(); ++x) {
    const Wide s = separation(x);
    const Wide left = x - (s >> 1);
    const Wide right = left + s;
    const bool inside = left >= 0 && left < line.width() && right >= 0 && right < line.width();
    if (!inside || left <= previous) continue;
    line[right] = line[left];
    previous = left;
    for (Wide i = fill + 1; i < right; ++i) line[i] = line[left];
    fill = right;
  }
}

}  // namespace

void ShiftRow(std::span<std::uint8_t> row, std::span<const std::int32_t> depth, std::int32_t gap,
              SourceKind kind, const TSirdsSettings& settings) {
  if (row.size() < 2 || depth.size() < row.size()) return;
  const Line line{row, depth};
  const Wide difference = Wide{settings.zmax} - settings.zmin;
  const Wide range = difference == 0 ? 1 : difference;
  const bool image = kind == SourceKind::kImage;
  switch (settings.scanMethod) {
    case kLeftToRight:
      ShiftLeftToRight(line, gap, image ? 256 : 64, range);
      break;
    case kMcMahon:
      ShiftMcMahon(line, gap, settings.zmin, range);
      break;
    case kFeucht:
      ShiftFeucht(line, image ? 1 : 4, settings.zmin, range);
      break;
    default:
      break;
  }
}

}  // namespace plenovia
