// How often each level occurs in a source.
#pragma once

#include <cstdint>
#include <vector>

#include "engine/depth_source.h"
#include "engine/scan_method.h"
#include "viewing/level_field.h"

namespace plenovia {

struct LevelCount {
  std::int32_t level = 0;
  std::int64_t count = 0;  // above 0
  bool operator==(const LevelCount&) const = default;
};

// The levels that occur, in ascending order.
using LevelHistogram = std::vector<LevelCount>;

LevelHistogram CountLevels(const DepthSource& source, FieldSize size);

// The lowest and the highest level; 0 and 0 when there are none.
LevelRange LevelsOf(const LevelHistogram& histogram);

// The counts of `bins` equal parts of `range`; levels outside of it are left out.
std::vector<std::int64_t> Binned(const LevelHistogram& histogram, LevelRange range, int bins);

}  // namespace plenovia
