#include "engine/separation.h"

#include <cstdlib>
#include <limits>

#include "engine/scan_rules.h"

namespace plenovia {

std::int64_t SeparationFromLevel(std::int32_t level, const TSirdsSettings& settings,
                                 SourceKind kind, int width) {
  const ScanRules rules(width, settings.gapValue, kind, settings);
  switch (settings.scanMethod) {
    case kLeftToRight:
      return -rules.LeftToRightDistance(level);
    case kMcMahon:
      return -rules.McMahonDistance(level);
    case kFeucht:
      return rules.FeuchtSeparation(level);
    default:
      return 0;
  }
}

int LevelFromSeparation(int separation, const TSirdsSettings& settings, SourceKind kind,
                        int width) {
  std::int64_t smallestError = std::numeric_limits<std::int64_t>::max();
  std::int64_t previous = std::numeric_limits<std::int64_t>::max();
  int first = 0;
  int last = 0;
  for (int level = 0; level <= 255; ++level) {
    const std::int64_t candidate = SeparationFromLevel(level, settings, kind, width);
    if (candidate > previous) break;  // beyond the eyes, where the rule starts anew
    const std::int64_t error = std::abs(candidate - separation);
    if (error < smallestError) {
      smallestError = error;
      first = last = level;
    } else if (candidate == previous && last == level - 1) {
      last = level;
    }
    previous = candidate;
  }
  return (first + last) / 2;
}

}  // namespace plenovia
