#include "platform/region.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace plenovia {

namespace {

void AddSpan(RowSpans& spans, const Span& span) {
  AppendSpan(spans, span.left, span.right);
}

// Fills from every other crossing to the next one.
void AddEvenOddSpans(RowSpans& spans, std::span<std::int64_t> crossings) {
  std::sort(crossings.begin(), crossings.end());
  for (std::size_t i = 0; i + 1 < crossings.size(); i += 2) {
    AppendSpan(spans, crossings[i], crossings[i + 1]);
  }
}

PixelRect BoundsOf(std::span<const PixelPoint> vertices) {
  if (vertices.empty()) return {};
  const PixelPoint& start = vertices.front();
  PixelRect box{start.x, start.y, start.x, start.y};
  for (const PixelPoint& p : vertices) {
    box.left = std::min(box.left, p.x);
    box.top = std::min(box.top, p.y);
    box.right = std::max(box.right, p.x);
    box.bottom = std::max(box.bottom, p.y);
  }
  return box;
}

}  // namespace

Region Region::Rectangle(const PixelRect& box) {
  return {box, RectangleShape{}};
}

Region Region::Ellipse(const PixelRect& box) {
  return {box, EllipseShape{}};
}

Region Region::RoundRectangle(const PixelRect& box, std::int64_t cornerWidth,
                              std::int64_t cornerHeight) {
  return {box, RoundRectangleShape{cornerWidth, cornerHeight}};
}

Region Region::Polygon(std::span<const PixelPoint> vertices) {
  auto outline = std::make_shared<PolygonOutline>();
  outline->vertices.assign(vertices.begin(), vertices.end());
  std::vector<IntervalTree::Interval> edges;
  for (std::size_t i = 0; i < vertices.size(); ++i) {
    const auto [top, bottom] = std::minmax(vertices[i].y, vertices[(i + 1) % vertices.size()].y);
    if (top == bottom) continue;
    edges.push_back({static_cast<std::int32_t>(top), static_cast<std::int32_t>(bottom - 1),
                     static_cast<std::uint32_t>(i)});
  }
  outline->edges = IntervalTree(edges);
  return {BoundsOf(vertices), PolygonShape(std::move(outline))};
}

Region Region::Line(const PixelPoint& a, const PixelPoint& b) {
  const PixelRect box = BoundsOf(std::array{a, b});
  return {{box.left, box.top, box.right + 1, box.bottom + 1}, LineShape{a, b}};
}

bool Region::Contains(std::int64_t x, std::int64_t y) const {
  if (x < bounds_.left || x >= bounds_.right) return false;
  const RowSpans spans = Spans(y);
  return std::any_of(spans.begin(), spans.end(),
                     [x](const Span& span) { return span.left <= x && x < span.right; });
}

RowSpans Region::Spans(std::int64_t y) const {
  RowSpans spans;
  Spans(y, spans);
  return spans;
}

void Region::Spans(std::int64_t y, RowSpans& spans) const {
  spans.clear();
  if (y < bounds_.top || y >= bounds_.bottom) return;
  std::visit([&](const auto& shape) { AddSpans(shape, y, spans); }, shape_);
}

RowSpans Region::FrameSpans(std::int64_t y) const {
  const RowSpans row = Spans(y);
  RowSpans inner;
  for (const Span& span : row) AppendSpan(inner, span.left + 1, span.right - 1);
  inner = IntersectionOf(IntersectionOf(inner, Spans(y - 1)), Spans(y + 1));
  return DifferenceOf(row, inner);
}

void Region::AddSpans(const RectangleShape&, std::int64_t, RowSpans& spans) const {
  AddSpan(spans, {bounds_.left, bounds_.right});
}

void Region::AddSpans(const EllipseShape&, std::int64_t y, RowSpans& spans) const {
  AddSpan(spans, EllipseRow(bounds_, y));
}

void Region::AddSpans(const RoundRectangleShape& shape, std::int64_t y, RowSpans& spans) const {
  AddSpan(spans, RoundRectangleRow(bounds_, shape.cornerWidth, shape.cornerHeight, y));
}

void Region::AddSpans(const LineShape& shape, std::int64_t y, RowSpans& spans) const {
  const auto& [a, b] = shape;
  const std::array<PixelPoint, 4> corners{a, {a.x + 1, a.y + 1}, b, {b.x + 1, b.y + 1}};
  std::array<std::int64_t, 4> crossings{};
  std::size_t count = 0;
  for (std::size_t i = 0; i < corners.size(); ++i) {
    const PixelPoint& from = corners[i];
    const PixelPoint& to = corners[(i + 1) % corners.size()];
    if (EdgeCrossesRow(from, to, y)) crossings[count++] = EdgeColumn(from, to, y);
  }
  RowSpans drawn;
  AddSpan(drawn, LineRow(a, b, y));
  AddEvenOddSpans(spans, std::span(crossings).first(count));
  spans = UnionOf(spans, drawn);
}

void Region::AddSpans(const PolygonShape& shape, std::int64_t y, RowSpans& spans) const {
  const std::vector<PixelPoint>& vertices = shape->vertices;
  std::vector<std::int64_t> crossings;
  shape->edges.ForEachAt(y, [&](std::uint32_t i) {
    crossings.push_back(EdgeColumn(vertices[i], vertices[(i + 1) % vertices.size()], y));
  });
  AddEvenOddSpans(spans, crossings);
}

}  // namespace plenovia
