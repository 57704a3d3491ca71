// The scan methods: how a row of background becomes a row of a stereogram.
#pragma once

#include <cstdint>
#include <span>

#include "engine/sirds_settings.h"

namespace plenovia {

// Where the levels of a row come from: a picture, or shapes (a depth map or a figure).
enum class SourceKind { kImage, kShape };

// Rewrites `row` (background pixels on entry, at least 2) by copying pixels along it at distances
// that depend on `depth`, which has one level a pixel. `gap` is the repeat distance of the
// background in pixels. Of `settings` zmin, zmax and scanMethod are read; a depth range of 0 counts
// as 1, and a scan method that does not exist leaves the row as it is. Only pixel values that the
// row held on entry are written.
//
// This is the plain rule, and the reference for PreparedShift. The methods are those known as
// left to right, McMahon's (from the middle outwards with hidden surfaces) and Feucht's (symmetric
// pairs about each column).
void ShiftRow(std::span<std::uint8_t> row, std::span<const std::int32_t> depth, std::int32_t gap,
              SourceKind kind, const TSirdsSettings& settings);

}  // namespace plenovia
