#include "depthmap/rubber_band.h"

#include <algorithm>
#include <cstddef>
#include <cstdlib>

#include "depthmap/object_painting.h"

namespace plenovia {

namespace {

void Include(PixelRect& box, const DepthPoint& point) {
  box.left = std::min<std::int64_t>(box.left, point.x);
  box.top = std::min<std::int64_t>(box.top, point.y);
  box.right = std::max<std::int64_t>(box.right, std::int64_t{point.x} + 1);
  box.bottom = std::max<std::int64_t>(box.bottom, std::int64_t{point.y} + 1);
}

}  // namespace

void RubberBand::Start(DepthObjKind kind, const DepthRect& rect) {
  Stop();
  shape_ = std::make_unique<TDepthObj>(nullptr, rect, kind, 0);
  AddVertex({rect.x1, rect.y1});
}

void RubberBand::Stop() {
  shape_.reset();
  line_.reset();
  closed_ = false;
}

void RubberBand::SetRect(const DepthRect& rect) {
  if (!IsActive() || IsPolygon()) return;
  shape_->SetRect(rect);
  shape_->DropRegion();
}

void RubberBand::AddVertex(const DepthPoint& point) {
  if (!IsPolygon()) return;
  shape_->AddPoint(point);
  line_.reset();
}

std::span<const DepthPoint> RubberBand::Vertices() const {
  return IsActive() ? shape_->GetPoints() : std::span<const DepthPoint>();
}

bool RubberBand::IsClosedBy(const DepthPoint& point, std::int64_t tolerance) const {
  const std::span<const DepthPoint> vertices = Vertices();
  return vertices.size() > 2 && std::abs(std::int64_t{point.x} - vertices.front().x) <= tolerance &&
         std::abs(std::int64_t{point.y} - vertices.front().y) <= tolerance;
}

void RubberBand::SetLine(const DepthPoint& from, const DepthPoint& to) {
  if (IsPolygon()) line_ = Line{from, to};
}

PixelRect RubberBand::Area() const {
  if (!IsActive()) return {};
  const DepthRect& rect = shape_->GetRect();
  const DepthPoint first = IsPolygon() ? Vertices().front() : DepthPoint{rect.x1, rect.y1};
  PixelRect box{first.x, first.y, first.x, first.y};
  Include(box, first);
  if (!IsPolygon()) Include(box, {rect.x2, rect.y2});
  for (const DepthPoint& vertex : Vertices()) Include(box, vertex);
  if (line_) {
    Include(box, line_->from);
    Include(box, line_->to);
  }
  return box;
}

void RubberBand::PaintRow(RowCanvas& canvas, std::int64_t y, const MapLook& look) const {
  if (!IsActive()) return;
  const MapScale& scale = look.scale;
  const Pixel colour = MarkPixel(look);
  if (!IsPolygon() || closed_) PaintOutlineRow(canvas, *shape_, y, scale, colour);
  const auto draw = [&](const DepthPoint& a, const DepthPoint& b) {
    PaintLineRow(canvas, scale.ShownMiddle(a), scale.ShownMiddle(b), y, colour);
  };
  const auto vertices = Vertices();
  for (std::size_t i = 1; i < vertices.size(); ++i) draw(vertices[i - 1], vertices[i]);
  if (line_) draw(line_->from, line_->to);
}

}  // namespace plenovia
