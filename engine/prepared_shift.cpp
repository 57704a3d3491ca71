#include "engine/prepared_shift.h"

#include <algorithm>

#include "engine/scan_passes.h"
#include "engine/scan_rules.h"

namespace plenovia {

namespace {

// What a pass works through: the columns of one row.
struct Columns {
  const std::uint8_t* levels;
  const DistanceTable& distances;
  std::span<const DistanceRun> runs;  // the last one only ends the one before it
  bool rough;                         // so many runs that single columns are faster

  std::int32_t Distance(int x) const { return distances[levels[x]]; }
};

// Lets the pass work on columns begin..end-1 from left to right.
template <class Pass>
void Ascending(const Columns& columns, int begin, int end, Pass pass) {
  if (columns.rough) {
    for (int x = begin; x < end; ++x) pass.Step(x, columns.Distance(x));
    return;
  }
  const auto runs = columns.runs;
  for (std::size_t i = 0; i + 1 < runs.size(); ++i) {
    const int from = std::max(begin, runs[i].start);
    const int to = std::min(end, runs[i + 1].start);
    if (from < to) pass.Run(from, to, runs[i].distance);
  }
}

// From right to left.
template <class Pass>
void Descending(const Columns& columns, int begin, int end, Pass pass) {
  if (columns.rough) {
    for (int x = end - 1; x >= begin; --x) pass.Step(x, columns.Distance(x));
    return;
  }
  const auto runs = columns.runs;
  for (std::size_t i = runs.size() - 1; i-- > 0;) {
    const int from = std::max(begin, runs[i].start);
    const int to = std::min(end, runs[i + 1].start);
    if (from < to) pass.Run(from, to, runs[i].distance);
  }
}

std::int64_t Distance(const ScanRules& rules, std::int32_t scanMethod, int level) {
  switch (scanMethod) {
    case kLeftToRight:
      return rules.LeftToRightDistance(level);
    case kMcMahon:
      return rules.McMahonDistance(level);
    case kFeucht:
      return rules.FeuchtSeparation(level);
    default:
      return 0;
  }
}

}  // namespace

PreparedShift::PreparedShift(int width, std::int32_t gap, SourceKind kind,
                             const TSirdsSettings& settings)
    : width_(width), gap_(gap), kind_(kind), settings_(settings) {
  const ScanRules rules(width, gap, kind, settings);
  // Farther than any row is long: all such distances lead out of the row alike.
  constexpr std::int64_t kFar = 1 << 28;
  for (int level = 0; level < 256; ++level) {
    distances_[static_cast<std::size_t>(level)] = static_cast<std::int32_t>(
        std::clamp(Distance(rules, settings.scanMethod, level), -kFar, kFar));
  }
}

ShiftBuffers PreparedShift::MakeRow() const {
  ShiftBuffers row;
  row.width_ = static_cast<std::size_t>(std::max(0, width_));
  row.pixels_.resize(row.width_ + 2 * ShiftBuffers::kSlack);
  row.bytes_.resize(row.width_ + 2 * ShiftBuffers::kSlack);
  row.levels_.resize(row.width_);
  row.runs_.resize(row.width_ + 1);
  return row;
}

void PreparedShift::ShiftBytes(ShiftBuffers& row) const {
  if (width_ < 2) return;
  const std::size_t count = FindDistanceRuns(row.byteLevels(), distances_, row.runs_);
  constexpr std::size_t kShortRun = 4;  // columns, on average
  const Columns columns{row.byteLevels().data(),
                        distances_,
                        {row.runs_.data(), count + 1},
                        count * kShortRun > row.width_};
  std::uint8_t* const pixels = row.pixels().data();
  const int middle = width_ / 2;
  switch (settings_.scanMethod) {
    case kLeftToRight:
      Ascending(columns, std::max(0, gap_), width_, LeftToRightPass{pixels, width_});
      break;
    case kMcMahon:
      Descending(columns, 0, middle, McMahonLeftPass(pixels, width_));
      Ascending(columns, middle, width_, McMahonRightPass{pixels, width_});
      break;
    case kFeucht:
      Descending(columns, 0, middle, FeuchtLeftPass(pixels, width_));
      Ascending(columns, middle, width_, FeuchtRightPass(pixels, width_));
      break;
    default:
      break;
  }
}

void PreparedShift::Shift(ShiftBuffers& row) const {
  const auto levels = row.levels();
  std::int32_t outside = 0;
  for (const std::int32_t level : levels) outside |= level;
  if ((outside & ~0xff) != 0) {
    ShiftRow(row.pixels(), levels, gap_, kind_, settings_);
    return;
  }
  std::transform(levels.begin(), levels.end(), row.byteLevels().begin(),
                 [](std::int32_t level) { return static_cast<std::uint8_t>(level); });
  ShiftBytes(row);
}

}  // namespace plenovia
