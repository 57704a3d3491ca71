#include "platform/shape_rows.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace plenovia {

namespace {

__extension__ using Int128 = __int128;  // products of two coordinates and a factor of 2

// Quotients that fit 64 bits, of a divisor above 0.
std::int64_t FloorDivide(Int128 value, Int128 divisor) {
  const auto narrowValue = static_cast<std::int64_t>(value);
  const auto narrowDivisor = static_cast<std::int64_t>(divisor);
  if (narrowValue == value && narrowDivisor == divisor) {  // nearly always, and much faster
    return narrowValue / narrowDivisor - (narrowValue % narrowDivisor < 0 ? 1 : 0);
  }
  return static_cast<std::int64_t>(value / divisor) - (value % divisor < 0 ? 1 : 0);
}
std::int64_t CeilDivide(Int128 value, Int128 divisor) {
  return -FloorDivide(-value, divisor);
}

}  // namespace

Span EllipseRow(const PixelRect& box, std::int64_t y) {
  // Lengths from the centre in half pixels: whole numbers for every pixel centre.
  const std::int64_t width = box.right - box.left;
  const std::int64_t height = box.bottom - box.top;
  const std::int64_t rise = 2 * y + 1 - box.top - box.bottom;
  if (std::abs(rise) >= height) return {box.left, box.left};
  const double half =
      static_cast<double>(width) / static_cast<double>(height) *
      std::sqrt(static_cast<double>(height - rise) * static_cast<double>(height + rise));
  auto reach = static_cast<std::int64_t>(half);
  if ((width - 1 - reach) % 2 != 0) --reach;  // centres lie at every second half pixel
  return {(box.left + box.right - 1 - reach) / 2, (box.left + box.right + 1 + reach) / 2};
}

Span RoundRectangleRow(const PixelRect& box, std::int64_t cornerWidth, std::int64_t cornerHeight,
                       std::int64_t y) {
  if (y < box.top || y >= box.bottom) return {box.left, box.left};
  cornerWidth = std::min(cornerWidth, box.right - box.left);
  cornerHeight = std::min(cornerHeight, box.bottom - box.top);
  const std::int64_t fromEnd = std::min(y - box.top, box.bottom - 1 - y);
  std::int64_t inset = 0;
  if (2 * fromEnd + 1 < cornerHeight) {
    inset = EllipseRow({0, 0, cornerWidth, cornerHeight}, fromEnd).left;
  }
  return {box.left + inset, box.right - inset};
}

bool EdgeCrossesRow(const PixelPoint& a, const PixelPoint& b, std::int64_t y) {
  return std::min(a.y, b.y) <= y && y < std::max(a.y, b.y);
}

std::int64_t EdgeColumn(const PixelPoint& a, const PixelPoint& b, std::int64_t y) {
  const PixelPoint& top = a.y < b.y ? a : b;
  const PixelPoint& bottom = a.y < b.y ? b : a;
  const Int128 height = bottom.y - top.y;
  const Int128 alongTwice = Int128{2 * (y - top.y) + 1} * (bottom.x - top.x);
  return top.x + CeilDivide(alongTwice - height, 2 * height);
}

Span LineRow(const PixelPoint& a, const PixelPoint& b, std::int64_t y) {
  const std::int64_t width = std::abs(b.x - a.x);
  const std::int64_t height = std::abs(b.y - a.y);
  const std::int64_t right = b.x < a.x ? -1 : 1;  // a step along the line
  const std::int64_t down = b.y < a.y ? -1 : 1;
  if (width <= height) {
    const std::int64_t step = (y - a.y) * down;
    if (step < 0 || step >= height) return {a.x, a.x};
    const Int128 twice = Int128{2 * step} * (b.x - a.x) + height;
    const std::int64_t x = a.x + FloorDivide(twice, Int128{2} * height);
    return {x, x + 1};
  }
  // Step t lies in row y when it rounds to it: 2k-1 <= 2 t dy / width < 2k+1, with k = y - a.y.
  const std::int64_t k = y - a.y;
  std::int64_t first = 0;
  std::int64_t end = width;
  if (height == 0) {
    if (k != 0) return {a.x, a.x};
  } else if (down > 0) {
    first = CeilDivide(Int128{2 * k - 1} * width, Int128{2} * height);
    end = CeilDivide(Int128{2 * k + 1} * width, Int128{2} * height);
  } else {
    first = FloorDivide(-Int128{2 * k + 1} * width, Int128{2} * height) + 1;
    end = FloorDivide(-Int128{2 * k - 1} * width, Int128{2} * height) + 1;
  }
  first = std::max<std::int64_t>(first, 0);
  end = std::min(end, width);
  if (first >= end) return {a.x, a.x};
  return right > 0 ? Span{a.x + first, a.x + end} : Span{a.x - end + 1, a.x - first + 1};
}

}  // namespace plenovia
