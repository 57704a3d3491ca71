#include "engine/separation.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>

namespace plenovia {

std::int64_t SeparationFromLevel(std::int32_t level, const TSirdsSettings& settings,
                                 SourceKind kind, int width) {
  return ScanMethodOf(settings.scanMethod)
      .separation(level, ScanSetup(width, settings.gapValue, kind, settings));
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

double FineLevelFromSeparation(double separation, const TSirdsSettings& settings, SourceKind kind,
                               int width) {
  const ScanMethod& method = ScanMethodOf(settings.scanMethod);
  const double level =
      method.level(separation, ScanSetup(width, settings.gapValue, kind, settings));
  return std::isfinite(level) ? std::clamp(level, 0.0, 255.0) : 0;
}

}  // namespace plenovia
