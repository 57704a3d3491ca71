// One row of a picture in black and white, painted from front to back.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "platform/row_spans.h"

namespace plenovia {

enum class Ink { kBlack, kWhite };

// Pixels as 0xAARRGGBB; nothing shows the ground behind the picture.
inline constexpr std::uint32_t kBlackPixel = 0xFF000000;
inline constexpr std::uint32_t kWhitePixel = 0xFFFFFFFF;
inline constexpr std::uint32_t kNothingPixel = 0;

// What is painted first stays: later paint only fills columns that are still free. Columns outside
// of 0..width-1 are left out.
class RowCanvas {
 public:
  RowCanvas() = default;
  explicit RowCanvas(int width);

  int width() const { return width_; }

  void Paint(const Span& columns, Ink ink);
  void Paint(const RowSpans& columns, Ink ink);
  // Everything that was painted on another canvas of the same width.
  void Paint(const RowCanvas& behind);

  bool IsFull() const;
  // Whether one of the columns is still free.
  bool HasRoom(const Span& columns) const;

  // The pixels of the columns first, first + 1, ..., all of them on the canvas.
  void Read(int first, std::span<std::uint32_t> pixels) const;

 private:
  // 64 columns, the lowest bit first. Those behind the width count as painted.
  struct Word {
    std::uint64_t painted = 0;
    std::uint64_t black = 0;
  };

  template <class Visit>
  bool AnyWord(Span columns, Visit visit) const;

  int width_ = 0;
  std::vector<Word> words_;
};

}  // namespace plenovia
