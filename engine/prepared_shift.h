// The scan methods made ready for many rows of one width: no division is left for each pixel, and
// stretches of equal depth are copied in blocks.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "engine/distance_runs.h"
#include "engine/scan_methods.h"
#include "platform/pixel_buffer.h"

namespace plenovia {

// One row of pixels with its levels, and the room that the work on it needs. Made by
// PreparedShift::MakeRow; one for each thread.
class ShiftBuffers {
 public:
  // The row's pixels.
  std::span<std::uint8_t> pixels() { return {pixels_.data() + kSlack, width_}; }
  // Its levels, one a pixel, as bytes or as numbers of any size.
  std::span<std::uint8_t> byteLevels() { return {bytes_.data() + kSlack, width_}; }
  std::span<std::int32_t> levels() { return levels_; }

 private:
  friend class PreparedShift;
  static constexpr std::size_t kSlack = 64;  // bytes before and after, so that blocks may overhang

  std::size_t width_ = 0;
  ByteBuffer pixels_;
  ByteBuffer bytes_;
  std::vector<std::int32_t> levels_;
  std::vector<DistanceRun> runs_;
};

// Gives exactly what ShiftRow gives. Const calls may run on several threads at once, each with
// buffers of its own.
class PreparedShift {
 public:
  // `width` is the number of pixels of each row; the other arguments are those of ShiftRow.
  PreparedShift(int width, std::int32_t gap, SourceKind kind, const TSirdsSettings& settings);

  ShiftBuffers MakeRow() const;

  // Rewrites the pixels by the levels in byteLevels(), or by those in levels().
  void ShiftBytes(ShiftBuffers& row) const;
  void Shift(ShiftBuffers& row) const;

 private:
  int width_;
  std::int32_t gap_;
  SourceKind kind_;
  TSirdsSettings settings_;
  // By level: the distance from a column to its partner, or for Feucht's method the separation.
  DistanceTable distances_{};
};

}  // namespace plenovia
