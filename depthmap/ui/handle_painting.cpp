#include "depthmap/ui/handle_painting.h"

#include <algorithm>
#include <cmath>

#include "depthmap/object_painting.h"

namespace plenovia {

namespace {

constexpr int kShownTolerance = 4;

// Black with a white rim, so that it shows on dark shades.
void PaintMark(QPainter& painter, const PixelPoint& shown, const QRect& view) {
  constexpr int kReach = static_cast<int>(kHandleReach);
  if (shown.x < view.left() - kReach || shown.x > view.right() + kReach ||
      shown.y < view.top() - kReach || shown.y > view.bottom() + kReach) {
    return;
  }
  const QPoint at(static_cast<int>(shown.x) - view.left(), static_cast<int>(shown.y) - view.top());
  const QRect mark(at - QPoint(kReach, kReach), 2 * QSize(kReach, kReach));
  painter.fillRect(mark, Qt::white);
  painter.fillRect(mark.adjusted(1, 1, -1, -1), Qt::black);
}

}  // namespace

std::int64_t PickTolerance(const MapScale& scale) {
  return std::max<std::int64_t>(1, std::llround(kShownTolerance / scale.Factor()));
}

void PaintHandles(QPainter& painter, const TDepthList& list, const MapScale& scale,
                  const QRect& view) {
  const auto selection = list.Selection();
  if (selection.empty() || list.Selected() == list.Background()) return;
  const bool alone = selection.size() == 1;
  for (const TDepthObj* object : selection) {
    for (const MapHandle& handle : HandlesOf(*object, 4 * PickTolerance(scale))) {
      const bool isCorner =
          handle.column != HandleSide::kNeither && handle.row != HandleSide::kNeither;
      if (isCorner != alone)
        PaintMark(painter, {scale.ShownEdge(handle.at.x), scale.ShownEdge(handle.at.y)}, view);
    }
  }
}

Qt::CursorShape CursorOf(const TDepthObj& object, const MapHandle& handle) {
  if (handle.IsVertex() || object.GetKind() == LineObj) return Qt::CrossCursor;
  if (handle.row == HandleSide::kNeither) return Qt::SizeHorCursor;
  if (handle.column == HandleSide::kNeither) return Qt::SizeVerCursor;
  const DepthRect& rect = object.GetRect();
  const bool atLeft = (handle.at.x == std::min(rect.x1, rect.x2));
  const bool atTop = (handle.at.y == std::min(rect.y1, rect.y2));
  return atLeft == atTop ? Qt::SizeFDiagCursor : Qt::SizeBDiagCursor;
}

}  // namespace plenovia
