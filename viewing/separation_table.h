// The separations of a run, by level.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "engine/scan_method.h"
#include "engine/separation.h"
#include "engine/sirds_settings.h"

namespace plenovia {

// What SeparationFromLevel gives, remembered for the usual levels.
class SeparationTable {
 public:
  SeparationTable(const TSirdsSettings& settings, SourceKind kind, int rowWidth)
      : settings_(settings), kind_(kind), rowWidth_(rowWidth) {
    for (std::size_t level = 0; level < usual_.size(); ++level) {
      usual_[level] =
          SeparationFromLevel(static_cast<std::int32_t>(level), settings, kind, rowWidth);
    }
  }

  std::int64_t operator()(std::int32_t level) const {
    return level >= 0 && level < 256 ? usual_[static_cast<std::size_t>(level)]
                                     : SeparationFromLevel(level, settings_, kind_, rowWidth_);
  }

 private:
  TSirdsSettings settings_;
  SourceKind kind_;
  int rowWidth_;
  std::array<std::int64_t, 256> usual_{};
};

}  // namespace plenovia
