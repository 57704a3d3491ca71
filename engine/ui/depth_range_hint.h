// What is said to the user about depth ranges.
#pragma once

#include <QString>

#include "engine/fit_depth_range.h"
#include "engine/sirds_settings.h"

namespace plenovia {

// Which Zmax suits which source, in two short sentences.
QString DepthRangeHint();

// That a fitted range takes the place of the one of `settings`.
QString FittedRangeText(const FittedRange& fitted, const TSirdsSettings& settings);

}  // namespace plenovia
