#include "engine/scan_rules.h"

namespace plenovia {

ScanRules::ScanRules(std::int64_t width, std::int32_t gapPixels, SourceKind kind,
                     const TSirdsSettings& settings)
    : gap(gapPixels),
      zmin(settings.zmin),
      range(std::int64_t{settings.zmax} - settings.zmin),
      levelShift(kind == SourceKind::kImage ? 256 : 64),
      levelScale(kind == SourceKind::kImage ? 1 : 4),
      reach(5 * width / 20) {
  far = 2 * range + zmin;
  near = 4 * range + zmin;
  if (range == 0) range = 1;
}

}  // namespace plenovia
