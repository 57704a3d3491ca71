// McMahon's method: from the middle outwards, with hidden surfaces. A column holds the same pixel
// as the one that lies its separation to its left.

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
    const int target = x - separation;
    if (target < 0 || target >= limit) return false;
    row[target] = row[x];
    limit = target;
    for (int i = target + 1; i < last; ++i) row[i] = row[target];
    last = target;
    return true;
  }

  void Steps(int begin, int end, int separation) {
    int x = end - 1;
    while (x >= begin && !Step(x, separation)) --x;
    // From here on each target is the left neighbour of the one before it.
    const int stop = std::max(begin, separation);
    if (x <= stop) return;
    if (DescendingInBlocks(-separation)) {
      CopyDescending(row + x - separation, row + x, x - stop);
    } else {
      for (int i = x - 1; i >= stop; --i) row[i - separation] = row[i];
    }
    limit = last = stop - separation;
  }
};

// From the middle to the right.
struct RightPass {
  std::uint8_t* row;
  int width;
  int previous = 0;

  bool Step(int x, int separation) {
    const int source = x - separation;
    if (source < 0) return false;
    if (source <= previous || source >= width) {
      row[x] = row[x - 1];
      return false;
    }
    row[x] = row[source];
    previous = source;
    return true;
  }

  void Steps(int begin, int end, int separation) {
    int x = begin;
    while (x < end && !Step(x, separation)) ++x;
    if (++x >= end) return;
    if (AscendingInBlocks(separation) && end - separation <= width) {
      CopyAscending(row + x, row + x - separation, end - x);
      previous = end - 1 - separation;
    } else {
      for (; x < end; ++x) Step(x, separation);
    }
  }
};

struct McMahon {
  static std::int64_t Separation(std::int64_t level, const ScanSetup& setup) {
    return setup.gap - (level - setup.zmin) * (setup.gap / 2) / setup.Divisor();
  }
  static double Level(double separation, const ScanSetup& setup) {
    const int half = std::max(1, setup.gap / 2);
    return static_cast<double>(setup.zmin) +
           (setup.gap - separation + 0.5) * static_cast<double>(setup.Divisor()) / half;
  }
  static bool Shows(LevelRange levels, const ScanSetup& setup) {
    return levels.lowest >= setup.zmin && levels.highest <= setup.zmin + setup.Divisor();
  }
  static LevelRange Fit(LevelRange levels, const ScanSetup&) {
    const std::int64_t range = std::max<std::int64_t>(1, levels.highest - levels.lowest);
    return {levels.lowest, levels.lowest + range + (range + 1) / 2};
  }

  template <class Columns>
  static void Shift(const Columns& columns, std::uint8_t* row, const ScanSetup& setup) {
    ShiftOutwards(columns, setup.width, LeftPass(row, setup.width), RightPass{row, setup.width});
  }
};

}  // namespace

const ScanMethod kMcMahonMethod = {
    .name = "mcmahon",
    .title = "McMahon",
    .choice = "McMahon (recommended)",
    .widensByGap = true,
    .tilesFromMiddle = true,
    .anchor = RevealAnchor::kRight,
    .separation = McMahon::Separation,
    .level = McMahon::Level,
    .shows = McMahon::Shows,
    .fit = McMahon::Fit,
    .prepare = MakePassShift<McMahon>,
};

}  // namespace plenovia
