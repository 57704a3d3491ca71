#include "app/view_commands.h"

#include <QMdiArea>
#include <QMdiSubWindow>

#include "app/plenovia_wnd.h"
#include "engine/ui/sirds_wnd.h"

namespace plenovia {

void CmZoomIn(TPlenoviaWnd& frame) {
  if (TSirdsWnd* picture = frame.ActivePicture()) picture->ZoomIn();
}

void CmZoomOut(TPlenoviaWnd& frame) {
  if (TSirdsWnd* picture = frame.ActivePicture()) picture->ZoomOut();
}

void CmGrayImage(TPlenoviaWnd& frame) {
  if (TSirdsWnd* picture = frame.ActivePicture()) picture->MakeGray();
}

void CmCascade(TPlenoviaWnd& frame) {
  frame.Area()->cascadeSubWindows();
}

void CmTile(TPlenoviaWnd& frame) {
  frame.Area()->tileSubWindows();
}

void CmArrangeIcons(TPlenoviaWnd& frame) {
  QPoint place(0, frame.Area()->viewport()->height());
  int rowHeight = 0;
  for (QMdiSubWindow* window : frame.Area()->subWindowList()) {
    if (!window->isMinimized()) continue;
    if (place.x() > 0 && place.x() + window->width() > frame.Area()->viewport()->width()) {
      place = {0, place.y() - rowHeight};
    }
    rowHeight = window->height();
    window->move(place.x(), place.y() - rowHeight);
    place.rx() += window->width();
  }
}

void CmCloseAll(TPlenoviaWnd& frame) {
  frame.Area()->closeAllSubWindows();
}

}  // namespace plenovia
