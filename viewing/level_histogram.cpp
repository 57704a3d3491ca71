#include "viewing/level_histogram.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <unordered_map>

namespace plenovia {

LevelHistogram CountLevels(const DepthSource& source, FieldSize size) {
  if (size.width < 1 || size.height < 1) return {};
  std::array<std::int64_t, 256> common{};
  std::unordered_map<std::int32_t, std::int64_t> others;
  std::vector<std::uint8_t> bytes(static_cast<std::size_t>(size.width));
  std::vector<std::int32_t> row;
  for (int y = 0; y < size.height; ++y) {
    if (source.BuildByteRow(y, bytes)) {
      for (const std::uint8_t level : bytes) ++common[level];
      continue;
    }
    row.resize(bytes.size());
    source.BuildRow(y, row);
    // A row of a map is made of long stretches of one level.
    for (std::size_t from = 0, to = 0; from < row.size(); from = to) {
      while (to < row.size() && row[to] == row[from]) ++to;
      const std::int32_t level = row[from];
      const auto count = static_cast<std::int64_t>(to - from);
      if (level >= 0 && level < 256) {
        common[static_cast<std::size_t>(level)] += count;
      } else {
        others[level] += count;
      }
    }
  }
  LevelHistogram histogram;
  for (const auto& [level, count] : others) histogram.push_back({level, count});
  for (std::size_t level = 0; level < common.size(); ++level) {
    if (common[level] > 0) histogram.push_back({static_cast<std::int32_t>(level), common[level]});
  }
  std::ranges::sort(histogram, {}, &LevelCount::level);
  return histogram;
}

LevelRange LevelsOf(const LevelHistogram& histogram) {
  if (histogram.empty()) return {};
  return {histogram.front().level, histogram.back().level};
}

std::vector<std::int64_t> Binned(const LevelHistogram& histogram, LevelRange range, int bins) {
  std::vector<std::int64_t> counts(static_cast<std::size_t>(std::max(0, bins)));
  const std::int64_t levels = range.highest - range.lowest + 1;
  if (counts.empty() || levels < 1) return counts;
  for (const auto& [level, count] : histogram) {
    if (level < range.lowest || level > range.highest) continue;
    counts[static_cast<std::size_t>((level - range.lowest) * bins / levels)] += count;
  }
  return counts;
}

}  // namespace plenovia
