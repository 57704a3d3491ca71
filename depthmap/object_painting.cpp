#include "depthmap/object_painting.h"

#include <algorithm>
#include <cstddef>

#include "platform/region.h"

namespace plenovia {

namespace {

constexpr std::int64_t kMarkReach = 2;

// Whether the pixel lies counterclockwise, as seen on the screen, of the way from the second corner
// to the first.
bool OnDrawnHalf(const DepthRect& rect, std::int64_t x, std::int64_t y) {
  const double wayX = static_cast<double>(rect.x1) - rect.x2;
  const double wayY = static_cast<double>(rect.y1) - rect.y2;
  const double fromMiddleX = static_cast<double>(2 * x + 1 - rect.x1 - rect.x2);
  const double fromMiddleY = static_cast<double>(2 * y + 1 - rect.y1 - rect.y2);
  return wayX * fromMiddleY <= wayY * fromMiddleX;
}

void PaintCurveRow(RowCanvas& canvas, const DepthRect& rect, std::int64_t y) {
  const Region ellipse = Region::Ellipse(rect.Normalised());
  for (const Span& span : ellipse.FrameSpans(y)) {
    const std::int64_t right = std::min<std::int64_t>(span.right, canvas.width());
    for (std::int64_t x = std::max<std::int64_t>(span.left, 0); x < right; ++x) {
      if (OnDrawnHalf(rect, x, y)) canvas.Paint(Span{x, x + 1}, Ink::kBlack);
    }
  }
}

bool IsFilled(DepthObjKind kind) {
  return kind >= SquareBoxObj && kind <= CircleObj;
}

}  // namespace

void PaintOutlineRow(RowCanvas& canvas, const TDepthObj& object, std::int64_t y) {
  const DepthRect& rect = object.GetRect();
  if (object.GetKind() == LineObj) {
    PaintLineRow(canvas, {rect.x1, rect.y1}, {rect.x2, rect.y2}, y);
  } else if (object.GetKind() == CurveObj) {
    PaintCurveRow(canvas, rect, y);
  } else if (IsFilled(object.GetKind())) {
    if (const Region* region = object.GetRegion()) canvas.Paint(region->FrameSpans(y), Ink::kBlack);
  }
}

void PaintShapeRow(RowCanvas& canvas, const TDepthObj& object, std::int64_t y) {
  if (!IsFilled(object.GetKind())) {
    PaintOutlineRow(canvas, object, y);
    return;
  }
  const Region* region = object.GetRegion();
  if (region == nullptr) return;
  const RowSpans covered = region->Spans(y);
  const bool shows = std::any_of(covered.begin(), covered.end(),
                                 [&](const Span& span) { return canvas.HasRoom(span); });
  if (!shows) return;
  canvas.Paint(region->FrameSpans(y), Ink::kBlack);
  canvas.Paint(covered, Ink::kWhite);
}

void PaintLineRow(RowCanvas& canvas, const DepthPoint& a, const DepthPoint& b, std::int64_t y) {
  if (y < std::min(a.y, b.y) || y > std::max(a.y, b.y)) return;
  canvas.Paint(LineRow({a.x, a.y}, {b.x, b.y}, y), Ink::kBlack);
}

void PaintMarksRow(RowCanvas& canvas, const DepthRect& rect, std::int64_t y) {
  for (const std::int64_t cornerY : {rect.y1, rect.y2}) {
    if (y < cornerY - kMarkReach || y >= cornerY + kMarkReach) continue;
    for (const std::int64_t x : {rect.x1, rect.x2}) {
      canvas.Paint(Span{x - kMarkReach, x + kMarkReach}, Ink::kBlack);
    }
  }
}

PixelPoint LabelPlace(const TDepthObj& object) {
  const PixelRect box = object.GetRect().Normalised();
  return {box.left + kLabelOffset.x, box.top + kLabelOffset.y};
}

void PaintLabelRow(RowCanvas& canvas, const LevelLabel& label, const PixelPoint& place,
                   std::int64_t y) {
  const std::int64_t row = y - place.y - label.top;
  if (row < 0 || y - place.y >= label.Bottom()) return;
  for (const Span& span : label.rows[static_cast<std::size_t>(row)]) {
    canvas.Paint(Span{place.x + span.left, place.x + span.right}, Ink::kBlack);
  }
  canvas.Paint(Span{place.x + label.left, place.x + label.right}, Ink::kWhite);
}

PixelRect DrawnBox(const TDepthObj& object, const LevelLabel& label) {
  const PixelRect box = object.GetRect().Normalised();
  const PixelPoint place = LabelPlace(object);
  return {std::min(box.left - kMarkReach, place.x + label.left),
          std::min(box.top - kMarkReach, place.y + label.top),
          std::max(box.right + kMarkReach, place.x + label.right),
          std::max(box.bottom + kMarkReach, place.y + label.Bottom())};
}

}  // namespace plenovia
