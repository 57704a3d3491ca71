// One row of a picture, painted from front to back.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "platform/row_spans.h"

namespace plenovia {

// 0xAARRGGBB
using Pixel = std::uint32_t;

inline constexpr Pixel kBlackPixel = 0xFF000000;
inline constexpr Pixel kWhitePixel = 0xFFFFFFFF;
inline constexpr Pixel kNothingPixel = 0;  // the ground behind the picture

// What is painted first stays: later paint only fills columns that are still free. Columns outside
// of its own are left out.
class RowCanvas {
 public:
  RowCanvas() = default;
  // The columns left..right-1.
  explicit RowCanvas(const Span& columns);
  explicit RowCanvas(int width) : RowCanvas(Span{0, width}) {}

  const Span& columns() const { return columns_; }

  void Paint(const Span& columns, Pixel colour);
  void Paint(const RowSpans& columns, Pixel colour);
  // Everything that was painted on another canvas of the same columns.
  void Paint(const RowCanvas& behind);

  bool IsFull() const;
  // Whether one of the columns is still free.
  bool HasRoom(const Span& columns) const;

  // The pixels of the columns first, first + 1, ..., all of them on the canvas.
  void Read(std::int64_t first, std::span<Pixel> pixels) const;

 private:
  template <class Visit>
  bool AnyWord(Span columns, Visit visit) const;

  Span columns_;
  std::vector<std::uint64_t> painted_;  // 64 columns each, the lowest bit first; those behind count
  std::vector<Pixel> pixels_;           // kNothingPixel where nothing is painted; whole words
};

}  // namespace plenovia
