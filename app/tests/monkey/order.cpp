#include "app/tests/monkey/order.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QMenu>
#include <QProgressBar>
#include <QToolButton>
#include <algorithm>

#include "app/command_table.h"
#include "app/status_bar.h"
#include "depthmap/ui/map_window.h"
#include "engine/ui/sirds_wnd.h"
#include "images/ui/color_wnd.h"
#include "platform/ui/resource_pictures.h"

namespace plenovia {

namespace {

void ExpectAtRest(TPlenoviaWnd& frame) {
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
  EXPECT_FALSE(frame.IsBusy());
  // Over the edges of docks it is Qt's.
  const Qt::CursorShape shape = frame.cursor().shape();
  if (shape != Qt::SplitHCursor && shape != Qt::SplitVCursor) {
    EXPECT_EQ(frame.cursor().hotSpot(), CursorById(kNormalCursor, 1).hotSpot()) << "busy cursor";
  }
  EXPECT_EQ(frame.findChild<QProgressBar*>(QStringLiteral("gauge"))->value(), 0);
  for (QWidget* window : QApplication::topLevelWidgets()) {
    EXPECT_EQ(qobject_cast<QDialog*>(window), nullptr) << window->windowTitle().toStdString();
  }
}

void ExpectCommandsAsAvailable(TPlenoviaWnd& frame) {
  CommandRouter& commands = frame.Commands();
  for (const CommandRow& row : CommandTable()) {
    if (row.number == 0) continue;
    EXPECT_EQ(commands.Action(row.number)->isEnabled(), commands.IsAvailable(row.number))
        << "command " << row.number;
  }
}

void ExpectWholeDocuments(TPlenoviaWnd& frame) {
  const auto windows = frame.Area()->subWindowList();
  Document* active = frame.GetActiveChild();
  EXPECT_EQ(active == nullptr, windows.isEmpty());
  int tables = 0;
  for (QMdiSubWindow* window : windows) {
    if (qobject_cast<TColorWnd*>(window) != nullptr) {
      ++tables;
      EXPECT_EQ(frame.Context().desk.ColourTable(), window);
    } else if (auto* picture = qobject_cast<TSirdsWnd*>(window)) {
      EXPECT_TRUE(picture->Picture()) << "a window without a picture";
    } else {
      EXPECT_NE(qobject_cast<TMapWindow*>(window), nullptr) << "a window of no kind";
    }
  }
  EXPECT_LE(tables, 1);
  EXPECT_EQ(tables, frame.Context().desk.ColourTable() != nullptr ? 1 : 0);
}

void ExpectToolShown(TPlenoviaWnd& frame) {
  const auto* map = qobject_cast<TMapWindow*>(frame.GetActiveChild());
  if (map == nullptr) return;
  EXPECT_TRUE(frame.Commands().Action(map->CurrentTool())->isChecked()) << map->CurrentTool();
}

}  // namespace

void ExpectOrder(TPlenoviaWnd& frame) {
  ExpectAtRest(frame);
  if (frame.isMinimized()) return;
  ExpectCommandsAsAvailable(frame);
  ExpectWholeDocuments(frame);
  ExpectToolShown(frame);
  EXPECT_GE(frame.Patterns()->GetCurrentIndex(), 0);
  EXPECT_LT(frame.Patterns()->GetCurrentIndex(), std::max(1, frame.Patterns()->GetCount()));
}

int ObjectsOf(const TPlenoviaWnd& frame) {
  qsizetype count = frame.findChildren<QObject*>().size();
  for (const auto* menu : frame.findChildren<QMenu*>()) count -= menu->actions().size();
  return static_cast<int>(count);
}

}  // namespace plenovia
