// Left to right: each column takes the pixel that lies its separation to its left.

#include <algorithm>
#include <cstdint>
#include <cstdlib>

#include "engine/block_copy.h"
#include "engine/pass_shift.h"
#include "engine/scan_method.h"

namespace plenovia {

namespace {

struct Pass {
  std::uint8_t* row;
  int width;

  void Step(int x, int separation) {
    const int source = x - separation;
    if (source >= 0 && source < width) row[x] = row[source];
  }

  void Steps(int begin, int end, int separation) {
    if (begin >= separation && end - separation <= width && AscendingInBlocks(separation)) {
      CopyAscending(row + begin, row + begin - separation, end - begin);
    } else {
      for (int x = begin; x < end; ++x) Step(x, separation);
    }
  }
};

struct LeftToRight {
  static std::int64_t Factor(const ScanSetup& setup) {
    return setup.kind == SourceKind::kImage ? 256 : 64;
  }
  // The lower end of the range does not count.
  static std::int64_t Separation(std::int64_t level, const ScanSetup& setup) {
    return setup.gap - level * Factor(setup) / setup.Divisor();
  }
  static double Level(double separation, const ScanSetup& setup) {
    return (setup.gap - separation + 0.5) * static_cast<double>(setup.Divisor()) /
           static_cast<double>(Factor(setup));
  }
  // Up to half the gap, as far as the other methods go.
  static bool Shows(LevelRange levels, const ScanSetup& setup) {
    return levels.lowest >= 0 && setup.Divisor() > 0 &&
           levels.highest * Factor(setup) <= setup.gap / 2 * setup.Divisor();
  }
  static LevelRange Fit(LevelRange levels, const ScanSetup& setup) {
    const std::int64_t farthest = std::max(std::abs(levels.lowest), std::abs(levels.highest));
    const std::int64_t third = std::max(1, setup.gap / 3);
    return {0, std::max<std::int64_t>(1, (farthest * Factor(setup) + third - 1) / third)};
  }

  template <class Columns>
  static void Shift(const Columns& columns, std::uint8_t* row, const ScanSetup& setup) {
    columns.Ascending(std::max(0, setup.gap), setup.width, Pass{row, setup.width});
  }
};

}  // namespace

const ScanMethod kLeftToRightMethod = {
    .name = "left-to-right",
    .title = "Left-To-Right",
    .choice = "Left-to-right",
    .widensByGap = true,
    .tilesFromMiddle = false,
    .anchor = RevealAnchor::kRight,
    .separation = LeftToRight::Separation,
    .level = LeftToRight::Level,
    .shows = LeftToRight::Shows,
    .fit = LeftToRight::Fit,
    .prepare = MakePassShift<LeftToRight>,
};

}  // namespace plenovia
