#include "depthmap/level_choice.h"

#include <algorithm>
#include <cstddef>
#include <span>
#include <vector>

#include "depthmap/depth_obj.h"
#include "platform/level_grid.h"
#include "platform/region.h"

namespace plenovia {

bool IsLevel(std::int32_t value) {
  return value >= kLowestLevel && value <= kHighestLevel;
}

std::int32_t StepLevelUp(std::int32_t value) {
  return value < kHighestLevel ? value + 1 : kLowestLevel;
}

std::int32_t StepLevelDown(std::int32_t value) {
  return value > kLowestLevel ? value - 1 : kHighestLevel;
}

std::int32_t LevelThatStandsOut(std::int32_t ground) {
  constexpr std::int32_t kStep = 16;
  return ground <= kHighestLevel - kStep ? ground + kStep : ground - kStep;
}

bool StandsOut(const TDepthObj& object, const LevelGrid& below) {
  const Region* region = object.GetRegion();
  if (region == nullptr) return false;
  const std::int64_t end = std::min<std::int64_t>(region->Bounds().bottom, below.GridHeight());
  std::vector<std::int32_t> levels(static_cast<std::size_t>(below.GridWidth()));
  const auto width = static_cast<std::int64_t>(levels.size());
  RowSpans spans;
  for (std::int64_t y = std::max<std::int64_t>(region->Bounds().top, 0); y < end; ++y) {
    region->Spans(y, spans);
    if (spans.empty()) continue;
    below.LevelRow(static_cast<int>(y), levels);
    for (const Span& span : spans) {
      const std::int64_t left = std::clamp<std::int64_t>(span.left, 0, width);
      const std::int64_t right = std::clamp<std::int64_t>(span.right, left, width);
      const auto covered = std::span(levels).subspan(static_cast<std::size_t>(left),
                                                     static_cast<std::size_t>(right - left));
      const auto differs = [&](std::int32_t level) { return level != object.GetLevel(); };
      if (std::ranges::any_of(covered, differs)) return true;
    }
  }
  return false;
}

}  // namespace plenovia
