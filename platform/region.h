// Sets of pixels bounded by a shape.
#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <utility>
#include <variant>
#include <vector>

#include "platform/interval_tree.h"
#include "platform/row_spans.h"
#include "platform/shape_rows.h"

namespace plenovia {

// Only the shape is kept: the spans of a row are worked out when they are asked for, so a region of
// any size or place costs what its outline costs. Pixels belong by the pixel-centre rule, right and
// bottom edges excluded. Coordinates are any 32-bit numbers. A value that is cheap to copy; const
// calls may run on several threads at once.
class Region {
 public:
  Region() = default;  // covers nothing

  // Boxes are given normalised (left <= right, top <= bottom).
  static Region Rectangle(const PixelRect& box);
  static Region Ellipse(const PixelRect& box);
  static Region RoundRectangle(const PixelRect& box, std::int64_t cornerWidth,
                               std::int64_t cornerHeight);
  // The closed polygon through the vertices, filled by the even-odd rule. Each row then costs
  // about what the edges that cross it cost.
  static Region Polygon(std::span<const PixelPoint> vertices);
  // A sliver about one pixel wide: the even-odd polygon a, a + (1, 1), b, b + (1, 1), and the
  // pixels that LineRow() draws from `a` to `b`. Nothing when `a` is `b`.
  static Region Line(const PixelPoint& a, const PixelPoint& b);

  bool Contains(std::int64_t x, std::int64_t y) const;

  // The box around the outline. Every pixel of the region lies in it; it can be larger than the
  // pixels need where the shape is too thin to hold a pixel's centre.
  const PixelRect& Bounds() const { return bounds_; }

  // The columns covered in row `y`; the second form replaces what `spans` held, so that many rows
  // can be had without a new vector each.
  RowSpans Spans(std::int64_t y) const;
  void Spans(std::int64_t y, RowSpans& spans) const;

  // The columns of row `y` that have a neighbour to the left, right, above or below outside the
  // region: a frame one pixel wide.
  RowSpans FrameSpans(std::int64_t y) const;

 private:
  struct RectangleShape {};
  struct EllipseShape {};
  struct RoundRectangleShape {
    std::int64_t cornerWidth = 0;
    std::int64_t cornerHeight = 0;
  };
  struct LineShape {
    PixelPoint a;
    PixelPoint b;
  };
  struct PolygonOutline {
    std::vector<PixelPoint> vertices;
    IntervalTree edges;  // edge i leads from vertex i to the one after it
  };
  using PolygonShape = std::shared_ptr<const PolygonOutline>;
  using Shape =
      std::variant<RectangleShape, EllipseShape, RoundRectangleShape, LineShape, PolygonShape>;

  template <class One>
  Region(const PixelRect& bounds, One shape)
      : bounds_(bounds), shape_(std::in_place_type<One>, std::move(shape)) {}

  void AddSpans(const RectangleShape& shape, std::int64_t y, RowSpans& spans) const;
  void AddSpans(const EllipseShape& shape, std::int64_t y, RowSpans& spans) const;
  void AddSpans(const RoundRectangleShape& shape, std::int64_t y, RowSpans& spans) const;
  void AddSpans(const LineShape& shape, std::int64_t y, RowSpans& spans) const;
  void AddSpans(const PolygonShape& shape, std::int64_t y, RowSpans& spans) const;

  PixelRect bounds_;
  Shape shape_;
};

}  // namespace plenovia
