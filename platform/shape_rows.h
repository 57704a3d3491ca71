// Which columns of a row of pixels a shape covers, by the pixel-centre rule: a pixel belongs to a
// shape when its centre does.
#pragma once

#include <cstdint>

#include "platform/row_spans.h"

namespace plenovia {

struct PixelPoint {
  std::int64_t x = 0;
  std::int64_t y = 0;
};

// The columns left..right-1 of the rows top..bottom-1.
struct PixelRect {
  std::int64_t left = 0;
  std::int64_t top = 0;
  std::int64_t right = 0;
  std::int64_t bottom = 0;
  bool operator==(const PixelRect&) const = default;
};

// In all of these coordinates lie between -2^32 and 2^32, and `y` may be any such row.

// The ellipse inscribed in `box`. Found in double precision; left == right when it covers nothing.
Span EllipseRow(const PixelRect& box, std::int64_t y);

// A box whose corners are quarters of an ellipse of the given size, which is cut to the box's.
Span RoundRectangleRow(const PixelRect& box, std::int64_t cornerWidth, std::int64_t cornerHeight,
                       std::int64_t y);

// Whether the edge from `a` to `b` passes the height of the centres of row `y`.
bool EdgeCrossesRow(const PixelPoint& a, const PixelPoint& b, std::int64_t y);

// The first column whose centre lies on or to the right of an edge that crosses row `y`. Exact.
std::int64_t EdgeColumn(const PixelPoint& a, const PixelPoint& b, std::int64_t y);

// The pixels of a line one pixel wide from `a` up to, but without, `b`: one in each column of a
// line that is wider than high, one in each row of any other, the nearest to the line (the lower
// or right one of two that are equally near). Nothing when `a` is `b`. Exact.
Span LineRow(const PixelPoint& a, const PixelPoint& b, std::int64_t y);

}  // namespace plenovia
