// The levels of a grid at one moment, which stay as they are when the grid is edited.
#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <vector>

#include "platform/level_grid.h"

namespace plenovia {

// Immutable. Rows are kept in bands that snapshots share, so that a new one costs what its changed
// rows cost. Throws std::bad_alloc when the memory does not suffice.
class LevelSnapshot final : public LevelGrid {
 public:
  // Reads all of the grid.
  static std::shared_ptr<const LevelSnapshot> Of(const LevelGrid& grid);
  // Reads the rows from `first` up to `end` (not included), as far as the grid has them, and shares
  // the others with this snapshot. A grid of another size is read as a whole.
  std::shared_ptr<const LevelSnapshot> Updated(const LevelGrid& grid, int first, int end) const;

  int GridWidth() const override { return width_; }
  int GridHeight() const override { return height_; }
  void LevelRow(int y, std::span<std::int32_t> levels) const override;

 private:
  using Band = std::vector<std::int32_t>;

  LevelSnapshot(int width, int height);
  void Read(const LevelGrid& grid, int band);

  int width_;
  int height_;
  std::vector<std::shared_ptr<const Band>> bands_;
};

}  // namespace plenovia
