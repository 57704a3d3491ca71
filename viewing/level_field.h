// The levels of a source, read out once.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "engine/depth_source.h"
#include "platform/level_grid.h"
#include "platform/pixel_buffer.h"

namespace plenovia {

// One level a point, rows top down. A side below 1 gives an empty field. Throws std::bad_alloc when
// the memory does not suffice.
class LevelField final : public LevelGrid {
 public:
  LevelField() = default;
  // All levels are 0.
  LevelField(int width, int height);

  int width() const { return width_; }
  int height() const { return height_; }
  bool empty() const { return levels_.empty(); }
  std::span<std::int32_t> Row(int y) { return std::span(levels_).subspan(Offset(y), Width()); }
  std::span<const std::int32_t> Row(int y) const {
    return std::span(levels_).subspan(Offset(y), Width());
  }

  int GridWidth() const override { return width_; }
  int GridHeight() const override { return height_; }
  void LevelRow(int y, std::span<std::int32_t> levels) const override;

 private:
  std::size_t Width() const { return static_cast<std::size_t>(width_); }
  std::size_t Offset(int y) const { return static_cast<std::size_t>(y) * Width(); }

  int width_ = 0;
  int height_ = 0;
  PixelVector<std::int32_t> levels_;
};

struct FieldSize {
  int width = 0;
  int height = 0;
  bool operator==(const FieldSize&) const = default;
};

// The largest size of the same shape, never above `size`, that fits the room; each side at least 1.
FieldSize FitInto(FieldSize size, FieldSize room);

// The levels of a source of `size`, of which the nearest rows and columns are taken where `sampled`
// is smaller.
LevelField ReadLevels(const DepthSource& source, FieldSize size, FieldSize sampled);

}  // namespace plenovia
