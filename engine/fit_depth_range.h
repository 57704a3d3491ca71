// A depth range that shows a source: for sources with levels that the range as set, or the scan
// method with it, cannot show.
#pragma once

#include <cstdint>
#include <string>

#include "engine/scan_method.h"
#include "engine/sirds_settings.h"
#include "platform/fine_image.h"
#include "platform/indexed_image.h"
#include "platform/level_grid.h"

namespace plenovia {

// The lowest and the highest level that occur in a source; 0 and 0 for an empty one.
LevelRange LevelsOf(const IndexedImage& picture, std::int32_t depthSel);
LevelRange LevelsOf(const LevelGrid& map);
// The whole levels around those that occur.
LevelRange LevelsOf(const FineImage& picture);
// The figures of the library stay between these.
inline constexpr LevelRange kFigureLevels = {0, 24};

struct FittedRange {
  std::int32_t zmin = 0;
  std::int32_t zmax = 0;
  bool fitted = false;   // false: the range as set shows the source, and zmin and zmax are its ends
  std::string notice{};  // a sentence for the user about a fitted range, else empty
};

// The range for a run over a source of these levels. The range as set stays when the scan method
// shows all levels with it and they differ in at least 2 pixels of separation. A fitted range
// brings the highest level about a third nearer than the background. Of `settings` zmin, zmax,
// scanMethod and gapValue are read; gapValue is the gap of the run, so for a run at a zoom the
// zoomed one.
FittedRange FitDepthRange(LevelRange levels, SourceKind kind, const TSirdsSettings& settings);

}  // namespace plenovia
