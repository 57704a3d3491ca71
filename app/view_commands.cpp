#include "app/view_commands.h"

#include <QMdiArea>
#include <QMdiSubWindow>

#include "app/cascade.h"
#include "app/command_context.h"
#include "app/desk.h"
#include "images/ui/color_wnd.h"
#include "platform/ui/message_box.h"

namespace plenovia {

void CmColorTable(CommandContext& context) {
  const Document* active = context.desk.Active();
  if (active == nullptr || active->GetWindowKind() != kPictureWindow) {
    ShowMessage(&context.frame, Commands::tr("Please open or select a Bitmap Graphic window."),
                Commands::tr("Color Table"), MessageIcon::kExclamation);
    return;
  }
  const auto picture = active->Picture();
  if (!picture) return;
  TColorWnd* table = context.desk.ColourTable();
  if (table == nullptr) {
    table = new TColorWnd(&context.desk.Area(), Commands::tr("Color Table"), &context.frame);
    context.desk.SetColourTable(table);
    context.desk.Adopt(*table);
  } else {
    table->showNormal();
    context.desk.Area().setActiveSubWindow(table);
  }
  table->SetSource(picture->palette());
}

void CmLiveView(CommandContext& context) {
  context.toggleLiveView();
}

void CmCascade(CommandContext& context) {
  CascadeWindows(context.desk.Area());
}

void CmTile(CommandContext& context) {
  context.desk.Area().tileSubWindows();
}

void CmArrangeIcons(CommandContext& context) {
  QMdiArea& area = context.desk.Area();
  QPoint place(0, area.viewport()->height());
  int rowHeight = 0;
  for (QMdiSubWindow* window : area.subWindowList()) {
    if (!window->isMinimized()) continue;
    if (place.x() > 0 && place.x() + window->width() > area.viewport()->width()) {
      place = {0, place.y() - rowHeight};
    }
    rowHeight = window->height();
    window->move(place.x(), place.y() - rowHeight);
    place.rx() += window->width();
  }
}

void CmCloseAll(CommandContext& context) {
  if (context.desk.AllMayClose()) context.desk.CloseDocuments();
}

}  // namespace plenovia
