#include "depthmap/object_painting.h"

#include <algorithm>
#include <cstddef>

#include "platform/region.h"

namespace plenovia {

namespace {

constexpr Pixel kLightEdge = 0xFF9A9A9A;  // of dark shapes
constexpr Pixel kDark = kBlackPixel | 0x505050;

// Whether the pixel lies counterclockwise, as seen on the screen, of the way from the second corner
// to the first.
bool OnDrawnHalf(const DepthRect& rect, std::int64_t x, std::int64_t y) {
  const double wayX = static_cast<double>(rect.x1) - rect.x2;
  const double wayY = static_cast<double>(rect.y1) - rect.y2;
  const double fromMiddleX = static_cast<double>(2 * x + 1 - rect.x1 - rect.x2);
  const double fromMiddleY = static_cast<double>(2 * y + 1 - rect.y1 - rect.y2);
  return wayX * fromMiddleY <= wayY * fromMiddleX;
}

// Of the columns first..end-1 of the drawn half ellipse.
RowSpans CurveSpans(const DepthRect& rect, std::int64_t y, std::int64_t first, std::int64_t end) {
  RowSpans curve;
  for (const Span& span : Region::Ellipse(rect.Normalised()).FrameSpans(y)) {
    const std::int64_t right = std::min(span.right, end);
    for (std::int64_t x = std::max(span.left, first); x < right; ++x) {
      if (OnDrawnHalf(rect, x, y)) AppendSpan(curve, x, x + 1);
    }
  }
  return curve;
}

bool IsFilled(DepthObjKind kind) {
  return kind >= SquareBoxObj && kind <= CircleObj;
}

void Enlarge(RowSpans& spans, const MapScale& scale) {
  for (Span& span : spans) span = scale.Shown(span);
}

RowSpans ShownSpans(const Region& region, std::int64_t y, const MapScale& scale) {
  RowSpans map;
  region.Spans(scale.MapPixel(y), map);
  if (scale.IsOne()) return map;
  RowSpans shown;
  for (const Span& span : map) {
    const Span columns = scale.Shown(span);
    AppendSpan(shown, columns.left, columns.right);
  }
  return shown;
}

// A frame one shown pixel wide.
RowSpans ShownFrame(const Region& region, std::int64_t y, const MapScale& scale) {
  if (scale.IsOne()) return region.FrameSpans(y);
  const RowSpans row = ShownSpans(region, y, scale);
  RowSpans inner;
  for (const Span& span : row) AppendSpan(inner, span.left + 1, span.right - 1);
  for (const std::int64_t beside : {y - 1, y + 1}) {
    if (scale.MapPixel(beside) == scale.MapPixel(y)) continue;
    inner = IntersectionOf(inner, ShownSpans(region, beside, scale));
  }
  return DifferenceOf(row, inner);
}

// Lines and curves: reduced, they are drawn with their corners where those are shown, so that they
// are whole; otherwise their pixels on the map are.
RowSpans StrokeSpans(const RowCanvas& canvas, const TDepthObj& object, std::int64_t y,
                     const MapScale& scale) {
  DepthRect rect = object.GetRect();
  std::int64_t row = y;
  Span columns = canvas.columns();
  if (scale.IsReduced()) {
    const auto reduce = [&](std::int32_t& place) {
      place = static_cast<std::int32_t>(scale.ShownMiddle(place));
    };
    for (std::int32_t* place : {&rect.x1, &rect.y1, &rect.x2, &rect.y2}) reduce(*place);
  } else {
    row = scale.MapPixel(y);
    columns = {scale.MapPixel(columns.left), scale.MapPixel(columns.right) + 1};
  }
  RowSpans spans;
  if (object.GetKind() == CurveObj) {
    spans = CurveSpans(rect, row, columns.left, columns.right);
  } else if (row >= std::min(rect.y1, rect.y2) && row <= std::max(rect.y1, rect.y2)) {
    const Span line = LineRow({rect.x1, rect.y1}, {rect.x2, rect.y2}, row);
    AppendSpan(spans, line.left, line.right);
  }
  if (!scale.IsReduced()) Enlarge(spans, scale);
  return spans;
}

Pixel InsideOf(const TDepthObj& object, const MapLook& look) {
  return look.IsShaded() ? ShadeOf(object.GetLevel(), look.lightest) : kWhitePixel;
}

}  // namespace

Pixel ShadeOf(std::int32_t level, std::int32_t lightest) {
  const std::int32_t shown = std::clamp(level, 0, lightest);
  const auto gray = static_cast<Pixel>(std::int64_t{shown} * 255 / lightest);
  return kBlackPixel | gray << 16 | gray << 8 | gray;
}

void PaintOutlineRow(RowCanvas& canvas, const TDepthObj& object, std::int64_t y,
                     const MapScale& scale, Pixel colour) {
  if (object.GetKind() == LineObj || object.GetKind() == CurveObj) {
    canvas.Paint(StrokeSpans(canvas, object, y, scale), colour);
  } else if (IsFilled(object.GetKind())) {
    if (const Region* region = object.GetRegion()) {
      canvas.Paint(ShownFrame(*region, y, scale), colour);
    }
  }
}

void PaintShapeRow(RowCanvas& canvas, const TDepthObj& object, std::int64_t y,
                   const MapLook& look) {
  const Pixel inside = InsideOf(object, look);
  const Pixel edge = inside < kDark ? kLightEdge : kBlackPixel;
  const bool filled = IsFilled(object.GetKind());
  if (object.GetKind() == LineObj) {
    PaintOutlineRow(canvas, object, y, look.scale, look.IsShaded() ? inside : edge);
  } else if (!filled && look.HasEdges()) {
    PaintOutlineRow(canvas, object, y, look.scale, edge);
  }
  if (!filled && !look.IsShaded()) return;
  const Region* region = object.GetRegion();
  if (region == nullptr) return;
  const RowSpans covered = ShownSpans(*region, y, look.scale);
  const bool shows = std::any_of(covered.begin(), covered.end(),
                                 [&](const Span& span) { return canvas.HasRoom(span); });
  if (!shows) return;
  if (filled && look.HasEdges()) canvas.Paint(ShownFrame(*region, y, look.scale), edge);
  canvas.Paint(covered, inside);
}

void PaintLineRow(RowCanvas& canvas, const PixelPoint& a, const PixelPoint& b, std::int64_t y,
                  Pixel colour) {
  if (y < std::min(a.y, b.y) || y > std::max(a.y, b.y)) return;
  canvas.Paint(LineRow(a, b, y), colour);
}

void PaintMarksRow(RowCanvas& canvas, const DepthRect& rect, std::int64_t y, const MapLook& look) {
  for (const std::int32_t corner : {rect.y1, rect.y2}) {
    const std::int64_t cornerY = look.scale.ShownEdge(corner);
    if (y < cornerY - kMarkReach || y >= cornerY + kMarkReach) continue;
    for (const std::int32_t column : {rect.x1, rect.x2}) {
      const std::int64_t x = look.scale.ShownEdge(column);
      canvas.Paint(Span{x - kMarkReach, x + kMarkReach}, MarkPixel(look));
    }
  }
}

PixelPoint LabelPlace(const TDepthObj& object, const MapScale& scale) {
  const PixelRect box = scale.Shown(object.GetRect().Normalised());
  return {box.left + kLabelOffset.x, box.top + kLabelOffset.y};
}

PixelRect LabelBox(const LevelLabel& label, const PixelPoint& place) {
  return {place.x + label.left, place.y + label.top, place.x + label.right,
          place.y + label.Bottom()};
}

void PaintLabelRow(RowCanvas& canvas, const LevelLabel& label, const PixelPoint& place,
                   std::int64_t y) {
  const std::int64_t row = y - place.y - label.top;
  if (row < 0 || y - place.y >= label.Bottom()) return;
  for (const Span& span : label.rows[static_cast<std::size_t>(row)]) {
    canvas.Paint(Span{place.x + span.left, place.x + span.right}, kBlackPixel);
  }
  canvas.Paint(Span{place.x + label.left, place.x + label.right}, kWhitePixel);
}

PixelRect ShownBox(const TDepthObj& object, const MapScale& scale) {
  const PixelRect box = scale.Shown(object.GetRect().Normalised());
  return {box.left - kMarkReach, box.top - kMarkReach, box.right + kMarkReach,
          box.bottom + kMarkReach};
}

}  // namespace plenovia
