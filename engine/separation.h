// How far apart the scan methods place the two pixels of a pair, and the way back to the level.
#pragma once

#include <cstdint>

#include "engine/scan_method.h"
#include "engine/sirds_settings.h"

namespace plenovia {

// The distance in pixels of the pair that the scan method of `settings` makes for a column of this
// level, in a row of `width` pixels over a background that repeats at settings.gapValue. May be 0
// or negative, where the method makes no pair that the eye could use; 0 for a scan method that does
// not exist. A depth range of 0 counts as 1.
std::int64_t SeparationFromLevel(std::int32_t level, const TSirdsSettings& settings,
                                 SourceKind kind, int width);

// The level, 0..255, whose separation is nearest to the given one; the middle one where several
// neighbouring levels share that separation.
int LevelFromSeparation(int separation, const TSirdsSettings& settings, SourceKind kind, int width);

// The same to parts of a level, 0..255, for a separation with parts of a pixel; 0 for a scan method
// that does not exist.
double FineLevelFromSeparation(double separation, const TSirdsSettings& settings, SourceKind kind,
                               int width);

}  // namespace plenovia
