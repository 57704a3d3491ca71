// Heights of any unit as levels.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <span>

#include "platform/fine_image.h"
#include "platform/result.h"

namespace plenovia {

// Takes heights in first, then gives the levels: the lowest finite height becomes level 0, which is
// far, and the highest level 65535; where all are equal, 0. Infinite heights count as the nearest
// of these. What is no number has no depth: it gets level 0.
class HeightScale {
 public:
  void Include(float z) {
    if (!std::isfinite(z)) return;
    lowest_ = std::min<double>(lowest_, z);
    highest_ = std::max<double>(highest_, z);
  }
  // No height was finite.
  bool empty() const { return lowest_ > highest_; }
  // All heights are in.
  void Fix() { scale_ = lowest_ < highest_ ? FineImage::kHighest / (highest_ - lowest_) : 0; }
  std::uint16_t LevelOf(float z) const {
    if (std::isnan(z)) return 0;
    return static_cast<std::uint16_t>(
        (std::clamp<double>(z, lowest_, highest_) - lowest_) * scale_ + 0.5);
  }

 private:
  double lowest_ = std::numeric_limits<double>::infinity();
  double highest_ = -std::numeric_limits<double>::infinity();
  double scale_ = 0;
};

// Rows top down, width * height heights, to their levels. Fails as FineImage::Create() does, and
// with kInvalid when no height is finite.
[[nodiscard]] Result<FineImage> LevelsFromHeights(int width, int height,
                                                  std::span<const float> heights);

// The same for levels: the lowest becomes 0, the highest 65535; equal ones stay as they are.
void StretchLevels(FineImage& image);

}  // namespace plenovia
