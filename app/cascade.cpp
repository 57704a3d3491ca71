#include "app/cascade.h"

#include <QStyle>
#include <algorithm>

namespace plenovia {

namespace {

constexpr int kCorners = 8;

int Step(const QMdiSubWindow& window) {
  return window.style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, &window) + 4;
}

}  // namespace

QPoint CascadeCorner(int number, const QMdiSubWindow& window) {
  return QPoint(1, 1) * (Step(window) * (number % kCorners));
}

void CascadeWindows(QMdiArea& area) {
  int number = 0;
  for (QMdiSubWindow* window : area.subWindowList(QMdiArea::StackingOrder)) {
    if (window->isMinimized() || window->isHidden()) continue;
    if (window->isMaximized()) window->showNormal();
    const QSize room = area.viewport()->size() - QSize(window->width(), Step(*window));
    const QPoint corner = CascadeCorner(number++, *window);
    window->move(std::clamp(room.width(), 0, corner.x()), std::clamp(room.height(), 0, corner.y()));
  }
}

}  // namespace plenovia
