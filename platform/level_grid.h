// Anything that has a depth level at each point of a rectangle, such as a depth map.
#pragma once

#include <cstdint>
#include <span>

namespace plenovia {

class LevelGrid {
 public:
  virtual ~LevelGrid() = default;

  // The rectangle's size in points; both may be below 1, then there is nothing to sample.
  virtual int GridWidth() const = 0;
  virtual int GridHeight() const = 0;

  // Writes the levels of the points (0, y), (1, y), ... into all of `levels`. Any y is allowed;
  // points that nothing covers have level 0. Const calls may run on several threads at once.
  virtual void LevelRow(int y, std::span<std::int32_t> levels) const = 0;
};

}  // namespace plenovia
