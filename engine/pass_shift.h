// The work on a row that scan methods of whole pixels share: no division is left for each pixel,
// and stretches of equal depth are copied in blocks.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>

#include "engine/distance_stretches.h"
#include "engine/prepared_shift.h"
#include "engine/scan_method.h"

namespace plenovia {

// A pass holds what its method remembers from column to column. Step(x, separation) is the rule for
// column x; Steps(begin, end, separation) does what Step() does for all columns begin..end-1, in
// the pass's own direction. Pixels may be read and rewritten unchanged up to 15 bytes beyond either
// end of the row.

// The columns of a row with levels of 0..255, for passes to work through.
struct ByteColumns {
  const std::uint8_t* levels;
  const DistanceTable& separations;
  std::span<const DistanceStretch> stretches;  // the last one only ends the one before it
  bool rough;  // with stretches so short that single columns are faster

  // Lets the pass work on columns begin..end-1 from left to right.
  template <class Pass>
  void Ascending(int begin, int end, Pass pass) const {
    if (rough) {
      for (int x = begin; x < end; ++x) pass.Step(x, separations[levels[x]]);
      return;
    }
    for (std::size_t i = 0; i + 1 < stretches.size(); ++i) {
      const int from = std::max(begin, stretches[i].start);
      const int to = std::min(end, stretches[i + 1].start);
      if (from < to) pass.Steps(from, to, stretches[i].distance);
    }
  }

  // From right to left.
  template <class Pass>
  void Descending(int begin, int end, Pass pass) const {
    if (rough) {
      for (int x = end - 1; x >= begin; --x) pass.Step(x, separations[levels[x]]);
      return;
    }
    for (std::size_t i = stretches.size() - 1; i-- > 0;) {
      const int from = std::max(begin, stretches[i].start);
      const int to = std::min(end, stretches[i + 1].start);
      if (from < to) pass.Steps(from, to, stretches[i].distance);
    }
  }
};

// The columns of a row with levels of any size: `separation` gives that of a column.
template <class Separation>
struct WideColumns {
  Separation separation;

  template <class Pass>
  void Ascending(int begin, int end, Pass pass) const {
    for (int x = begin; x < end; ++x) pass.Step(x, separation(x));
  }
  template <class Pass>
  void Descending(int begin, int end, Pass pass) const {
    for (int x = end - 1; x >= begin; --x) pass.Step(x, separation(x));
  }
};

// From the middle column to both ends, the left half first.
template <class Columns, class LeftPass, class RightPass>
void ShiftOutwards(const Columns& columns, int width, LeftPass left, RightPass right) {
  const int middle = width / 2;
  columns.Descending(0, middle, left);
  columns.Ascending(middle, width, right);
}

// `Method` has the rule Separation(level, setup) and Shift(columns, pixels, setup), which lets its
// passes work through the columns.
template <class Method>
class PassShift final : public PreparedShift {
 public:
  explicit PassShift(const ScanSetup& setup) : setup_(setup) {
    for (std::size_t level = 0; level < separations_.size(); ++level) {
      separations_[level] = SeparationOf(static_cast<std::int64_t>(level));
    }
  }

  void ShiftBytes(ShiftBuffers& row) const override {
    if (setup_.width < 2) return;
    constexpr std::size_t kShortRun = 4;  // columns, on average
    const auto levels = row.byteLevels();
    const std::size_t count = FindDistanceStretches(levels, separations_, row.stretches());
    const bool rough = count * kShortRun > levels.size();
    Method::Shift(ByteColumns{levels.data(), separations_, row.stretches().first(count + 1), rough},
                  row.pixels().data(), setup_);
  }

  void Shift(ShiftBuffers& row) const override {
    if (setup_.width < 2) return;
    const auto levels = row.levels();
    std::int32_t outside = 0;
    for (const std::int32_t level : levels) outside |= level;
    if ((outside & ~0xff) != 0) {
      const auto separation = [&](int x) {
        return SeparationOf(levels[static_cast<std::size_t>(x)]);
      };
      Method::Shift(WideColumns<decltype(separation)>{separation}, row.pixels().data(), setup_);
      return;
    }
    std::transform(levels.begin(), levels.end(), row.byteLevels().begin(),
                   [](std::int32_t level) { return static_cast<std::uint8_t>(level); });
    ShiftBytes(row);
  }

 private:
  std::int32_t SeparationOf(std::int64_t level) const {
    // Farther than any row is long: all such distances lead out of the row alike.
    constexpr std::int64_t kFar = 1 << 28;
    return static_cast<std::int32_t>(std::clamp(Method::Separation(level, setup_), -kFar, kFar));
  }

  ScanSetup setup_;
  DistanceTable separations_{};  // by level
};

template <class Method>
std::unique_ptr<const PreparedShift> MakePassShift(const ScanSetup& setup) {
  return std::make_unique<PassShift<Method>>(setup);
}

}  // namespace plenovia
