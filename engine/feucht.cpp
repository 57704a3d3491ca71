// Feucht's method: from the middle outwards, in pairs that lie evenly about their column. The gap
// does not count.

#include <algorithm>
#include <cstdint>

#include "engine/block_copy.h"
#include "engine/pass_shift.h"
#include "engine/scan_method.h"

namespace plenovia {

namespace {

// From the middle to the left.
struct LeftPass {
  std::uint8_t* row;
  int limit;
  int last = 0;

  LeftPass(std::uint8_t* pixels, int width) : row(pixels), limit(width) {}

  bool Step(int x, int separation) {
    const int left = x - (separation >> 1);
    const int right = left + separation;
    if (left < 0 || right < 0 || right >= limit) return false;
    row[left] = row[right];
    limit = right;
    for (int i = left + 1; i < last; ++i) row[i] = row[right];
    last = left;
    return true;
  }

  void Steps(int begin, int end, int separation) {
    int x = end - 1;
    while (x >= begin && !Step(x, separation)) --x;
    const int half = separation >> 1;
    const int stop = std::max({begin, half, half - separation});
    if (x <= stop) return;
    std::uint8_t* const left = row + x - half;
    if (DescendingInBlocks(-separation)) {
      CopyDescending(left, left + separation, x - stop);
    } else {
      for (int i = 1; i <= x - stop; ++i) left[-i] = left[separation - i];
    }
    last = stop - half;
    limit = last + separation;
  }
};

// From the middle to the right.
struct RightPass {
  std::uint8_t* row;
  int width;
  int previous = 0;
  int fill;

  RightPass(std::uint8_t* pixels, int columns) : row(pixels), width(columns), fill(columns) {}

  bool Step(int x, int separation) {
    const int left = x - (separation >> 1);
    const int right = left + separation;
    if (left <= previous || left >= width || right < 0 || right >= width) return false;
    row[right] = row[left];
    previous = left;
    for (int i = fill + 1; i < right; ++i) row[i] = row[left];
    fill = right;
    return true;
  }

  void Steps(int begin, int end, int separation) {
    int x = begin;
    while (x < end && !Step(x, separation)) ++x;
    ++x;
    const int half = separation >> 1;
    const int stop = std::min({end, width + half, width + half - separation});
    if (x >= stop) return;
    std::uint8_t* const left = row + x - half;
    if (AscendingInBlocks(separation)) {
      CopyAscending(left + separation, left, stop - x);
    } else {
      for (int i = 0; i < stop - x; ++i) left[i + separation] = left[i];
    }
    previous = stop - 1 - half;
    fill = previous + separation;
  }
};

struct Feucht {
  // The levels of shapes count four times.
  static std::int64_t Factor(const ScanSetup& setup) {
    return setup.kind == SourceKind::kImage ? 1 : 4;
  }
  static std::int64_t Separation(std::int64_t level, const ScanSetup& setup) {
    const std::int64_t depth = level * Factor(setup);
    const std::int64_t vanishing = 2 * setup.range + setup.zmin;  // separation 0
    const std::int64_t pole = 4 * setup.range + setup.zmin;       // where there is none
    const std::int64_t reach = 5 * std::int64_t{setup.width} / 20;
    return depth == pole ? 0 : (vanishing - depth) * reach / (pole - depth);
  }
  static double Level(double separation, const ScanSetup& setup) {
    const auto range = static_cast<double>(setup.range);
    const auto zmin = static_cast<double>(setup.zmin);
    const double middle = separation + 0.5;
    const double reach = 5.0 * setup.width / 20;
    const double toPole = reach - middle;
    if (toPole == 0) return 0;
    const double depth = ((2 * range + zmin) * reach - middle * (4 * range + zmin)) / toPole;
    return depth / static_cast<double>(Factor(setup));
  }
  // Up to 3/8 of the farthest separation, which is where the nearest levels of the figures lie in
  // the default range.
  static bool Shows(LevelRange levels, const ScanSetup& setup) {
    const std::int64_t nearest = levels.highest * Factor(setup) - setup.zmin;
    return setup.range > 0 && levels.lowest * Factor(setup) >= setup.zmin &&
           16 * (2 * setup.range - nearest) >= 3 * (4 * setup.range - nearest);
  }
  static LevelRange Fit(LevelRange levels, const ScanSetup& setup) {
    const std::int64_t range = std::max<std::int64_t>(1, levels.highest - levels.lowest);
    return {levels.lowest * Factor(setup), (levels.lowest + range) * Factor(setup)};
  }

  template <class Columns>
  static void Shift(const Columns& columns, std::uint8_t* row, const ScanSetup& setup) {
    ShiftOutwards(columns, setup.width, LeftPass(row, setup.width), RightPass(row, setup.width));
  }
};

}  // namespace

const ScanMethod kFeuchtMethod = {
    .name = "feucht",
    .title = "Feucht",
    .choice = "Feucht",
    .widensByGap = false,
    .tilesFromMiddle = true,
    .anchor = RevealAnchor::kCentre,
    .separation = Feucht::Separation,
    .level = Feucht::Level,
    .shows = Feucht::Shows,
    .fit = Feucht::Fit,
    .prepare = MakePassShift<Feucht>,
};

}  // namespace plenovia
