#include "app/view_commands.h"

#include <QMdiArea>
#include <QMdiSubWindow>

#include "app/plenovia_wnd.h"
#include "engine/ui/sirds_wnd.h"
#include "images/ui/color_wnd.h"
#include "platform/ui/message_box.h"

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

void CmColorTable(TPlenoviaWnd& frame) {
  const TSirdsWnd* picture = frame.ActivePicture();
  if (picture == nullptr) {
    ShowMessage(&frame, TPlenoviaWnd::tr("Please open or select a Bitmap Graphic window."),
                TPlenoviaWnd::tr("Color Table"), MessageIcon::kExclamation);
    return;
  }
  if (!picture->Picture()) return;
  const Palette shown = picture->Picture()->palette();
  TColorWnd* table = frame.ColourTable();
  if (table == nullptr) {
    table = new TColorWnd(frame.Area(), TPlenoviaWnd::tr("Color Table"), &frame);
    frame.SetColourTable(table);
    frame.Adopt(*table);
  } else {
    table->showNormal();
    frame.Area()->setActiveSubWindow(table);
  }
  table->SetSource(shown);
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
  if (frame.AllMayClose()) frame.CloseDocuments();
}

}  // namespace plenovia
