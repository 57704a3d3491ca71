#include "engine/fit_depth_range.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <limits>
#include <vector>

#include "engine/depth_source.h"

namespace plenovia {

namespace {

// Whether the levels lie so close together that no depth is seen.
bool Flat(LevelRange levels, const ScanMethod& method, const ScanSetup& setup) {
  if (levels.lowest == levels.highest) return false;
  const std::int64_t depth =
      method.separation(levels.lowest, setup) - method.separation(levels.highest, setup);
  return std::abs(depth) < 2;
}

std::int32_t Saturated(std::int64_t level) {
  using Limits = std::numeric_limits<std::int32_t>;
  return static_cast<std::int32_t>(std::clamp<std::int64_t>(level, Limits::min(), Limits::max()));
}

std::string FromTo(std::int64_t low, std::int64_t high) {
  return std::to_string(low) + " to " + std::to_string(high);
}

}  // namespace

LevelRange LevelsOf(const IndexedImage& picture, std::int32_t depthSel) {
  std::array<bool, 256> occurs{};
  for (const std::uint8_t index : picture.pixels()) occurs[index] = true;
  const auto levels = PixelLevels(picture.palette(), depthSel);
  LevelRange range{255, 0};
  for (std::size_t index = 0; index < occurs.size(); ++index) {
    if (!occurs[index]) continue;
    range.lowest = std::min<std::int64_t>(range.lowest, levels[index]);
    range.highest = std::max<std::int64_t>(range.highest, levels[index]);
  }
  return picture.empty() ? LevelRange{} : range;
}

LevelRange LevelsOf(const LevelGrid& map) {
  if (map.GridWidth() < 1 || map.GridHeight() < 1) return {};
  std::vector<std::int32_t> row(static_cast<std::size_t>(map.GridWidth()));
  map.LevelRow(0, row);
  LevelRange range{row.front(), row.front()};
  for (int y = 0; y < map.GridHeight(); ++y) {
    map.LevelRow(y, row);
    const auto [least, most] = std::ranges::minmax(row);
    range.lowest = std::min<std::int64_t>(range.lowest, least);
    range.highest = std::max<std::int64_t>(range.highest, most);
  }
  return range;
}

LevelRange LevelsOf(const FineImage& picture) {
  if (picture.empty()) return {};
  const auto [least, most] = std::ranges::minmax(picture.pixels());
  constexpr int kParts = FineDepth::kLevelParts;
  return {least / kParts, (most + kParts - 1) / kParts};
}

FittedRange FitDepthRange(LevelRange levels, SourceKind kind, const TSirdsSettings& settings) {
  const ScanMethod& method = ScanMethodOf(settings.scanMethod);
  // In rows of this width all methods repeat the background at about the gap.
  const ScanSetup setup(8 * settings.gapValue, settings.gapValue, kind, settings);
  const bool shown = method.shows(levels, setup) && !Flat(levels, method, setup);
  if (shown || !IsScanMethod(settings.scanMethod)) {
    return {.zmin = settings.zmin, .zmax = settings.zmax};
  }
  const LevelRange range = method.fit(levels, setup);
  FittedRange result{
      .zmin = Saturated(range.lowest), .zmax = Saturated(range.highest), .fitted = true};
  result.notice = "The depth range of " + FromTo(settings.zmin, settings.zmax) +
                  " does not show the levels " + FromTo(levels.lowest, levels.highest) +
                  " of this source with the scan method " + method.title + "; " +
                  FromTo(result.zmin, result.zmax) + " was used.";
  return result;
}

}  // namespace plenovia
