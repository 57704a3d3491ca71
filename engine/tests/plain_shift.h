// The scan methods written plainly, column by column, to hold the fast ones against.
#pragma once

#include <cstdint>
#include <span>

#include "engine/scan_method.h"
#include "engine/sirds_settings.h"

namespace plenovia {

// Rewrites the background pixels of `row` by the levels in `depth`, one a pixel. Of `settings`
// zmin, zmax and scanMethod are read. The smooth method has no plainer form than its own; here it
// does not blend.
void ShiftRow(std::span<std::uint8_t> row, std::span<const std::int32_t> depth, std::int32_t gap,
              SourceKind kind, const TSirdsSettings& settings);

}  // namespace plenovia
