// A scan method made ready for many rows of one width.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "engine/distance_stretches.h"
#include "platform/pixel_buffer.h"

namespace plenovia {

// One row of pixels with its levels, and the room that the work on it needs; one for each thread.
class ShiftBuffers {
 public:
  explicit ShiftBuffers(int width)
      : width_(static_cast<std::size_t>(std::max(0, width))),
        pixels_(width_ + 2 * kSlack),
        bytes_(width_ + 2 * kSlack),
        levels_(width_),
        stretches_(width_ + 1),
        separations_(width_),
        places_(width_ + 1),
        seenLeft_(width_),
        seenRight_(width_) {}

  // The row's pixels.
  std::span<std::uint8_t> pixels() { return {pixels_.data() + kSlack, width_}; }
  // Its levels, one a pixel, as bytes or as numbers of any size.
  std::span<std::uint8_t> byteLevels() { return {bytes_.data() + kSlack, width_}; }
  std::span<std::int32_t> levels() { return levels_; }
  // Room for its stretches of equal distance and the end of the last one.
  std::span<DistanceStretch> stretches() { return stretches_; }
  // Room for a separation a column, for a place in the background for each pixel and one beyond,
  // and for what each eye sees.
  std::span<std::int32_t> separations() { return separations_; }
  std::span<std::int32_t> places() { return places_; }
  std::span<std::int32_t> seenLeft() { return seenLeft_; }
  std::span<std::int32_t> seenRight() { return seenRight_; }

 private:
  static constexpr std::size_t kSlack = 64;  // bytes before and after, so that blocks may overhang

  std::size_t width_;
  ByteBuffer pixels_;
  ByteBuffer bytes_;
  std::vector<std::int32_t> levels_;
  std::vector<DistanceStretch> stretches_;
  std::vector<std::int32_t> separations_;
  std::vector<std::int32_t> places_;
  std::vector<std::int32_t> seenLeft_;
  std::vector<std::int32_t> seenRight_;
};

// Rewrites rows of background pixels by copying pixels along them at distances that depend on their
// levels; only pixel values that a row held on entry, or blends of them, are written. Const calls
// may run on several threads at once, each with buffers of its own, which must have the width that
// was prepared for.
class PreparedShift {
 public:
  PreparedShift() = default;
  PreparedShift(const PreparedShift&) = delete;
  PreparedShift& operator=(const PreparedShift&) = delete;
  virtual ~PreparedShift() = default;

  // By the levels in byteLevels().
  virtual void ShiftBytes(ShiftBuffers& row) const = 0;
  // By those in levels(). What byteLevels() holds is lost.
  virtual void Shift(ShiftBuffers& row) const = 0;
};

}  // namespace plenovia
