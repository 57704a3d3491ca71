#include "documents/ui/mouse_wnd.h"

#include <gtest/gtest.h>

#include <QAbstractScrollArea>
#include <QTest>

namespace plenovia {
namespace {

class Window : public TMouseWnd {
 public:
  explicit Window(QMdiArea* area) : TMouseWnd(area, QStringLiteral("window"), nullptr) {}
  std::string calls;
  TrackRect atRelease;
  bool draggedAtRelease = false;
  using TMouseWnd::ButtonDownPoint;
  using TMouseWnd::LastPoint;
  using TMouseWnd::LeftDragged;

 protected:
  void Paint(QPainter&, const QRect&) override {}
  void OnLButtonDown(MouseKeys, QPoint) override { calls += "down "; }
  void OnLButtonDblClk(MouseKeys, QPoint) override { calls += "double "; }
  void OnRButtonDown(MouseKeys, QPoint) override { calls += "rdown "; }
  void OnRButtonUp(MouseKeys, QPoint) override { calls += "rup "; }
  void LeftDrag(int x, int y) override {
    TMouseWnd::LeftDrag(x, y);
    calls += "drag ";
  }
  void HoverMove(int x, int y) override {
    TMouseWnd::HoverMove(x, y);
    calls += "hover ";
  }
  void OnLButtonUp(MouseKeys, QPoint) override {
    calls += "up ";
    atRelease = Tracking();
    draggedAtRelease = LeftDragged();
  }
};

class MouseWnd : public testing::Test {
 protected:
  MouseWnd() {
    area.resize(500, 400);
    area.show();
    window = new Window(&area);
    window->SetWindowSize({300, 200});
    window->show();
    view = window->findChild<QAbstractScrollArea*>(QStringLiteral("client"))->viewport();
  }

  void Move(QPoint to, Qt::MouseButtons buttons, Qt::KeyboardModifiers modifiers = {}) {
    QMouseEvent event(QEvent::MouseMove, to, view->mapToGlobal(to), Qt::NoButton, buttons,
                      modifiers);
    QCoreApplication::sendEvent(view, &event);
  }

  QMdiArea area;
  Window* window;
  QWidget* view;
};

TEST_F(MouseWnd, DragGoesFromThePressToTheReleaseEvenOutside) {
  QTest::mousePress(view, Qt::LeftButton, {}, {10, 20});
  Move({30, 25}, Qt::LeftButton);
  Move({40, 35}, Qt::LeftButton);
  QTest::mouseRelease(view, Qt::LeftButton, {}, {-5, 500});
  EXPECT_EQ(window->calls, "down drag drag up ");
  EXPECT_EQ(window->atRelease.anchor, QPoint(10, 20));
  EXPECT_EQ(window->atRelease.moving, QPoint(-5, 500));
  EXPECT_EQ(window->atRelease.Normalised(), QRect(-5, 20, 15, 480));
  EXPECT_TRUE(window->draggedAtRelease);
  EXPECT_FALSE(window->LeftDragged());
}

TEST_F(MouseWnd, ClickIsNoDragAndMovesWithShiftAreNothing) {
  QTest::mouseClick(view, Qt::LeftButton, {}, {10, 20});
  EXPECT_FALSE(window->draggedAtRelease);
  EXPECT_TRUE(window->atRelease.IsEmpty());
  QTest::mousePress(view, Qt::LeftButton, Qt::ShiftModifier, {10, 20});
  Move({30, 25}, Qt::LeftButton, Qt::ShiftModifier);
  Move({30, 25}, Qt::LeftButton, Qt::ControlModifier);
  QTest::mouseRelease(view, Qt::LeftButton, Qt::ShiftModifier, {60, 70});
  EXPECT_FALSE(window->draggedAtRelease);
  EXPECT_EQ(window->calls, "down up down up ");
}

TEST_F(MouseWnd, RightButtonSetsTheDownPointAndTwoButtonsAreNoDrag) {
  QTest::mousePress(view, Qt::RightButton, {}, {7, 8});
  EXPECT_EQ(window->ButtonDownPoint(), QPoint(7, 8));
  Move({9, 9}, Qt::LeftButton | Qt::RightButton);
  QTest::mouseRelease(view, Qt::RightButton, {}, {9, 9});
  QTest::mouseRelease(view, Qt::RightButton, {}, {9, 9});
  Move({11, 12}, Qt::NoButton);
  EXPECT_EQ(window->calls, "rdown rup hover ");
  EXPECT_EQ(window->LastPoint(), QPoint(11, 12));
}

TEST_F(MouseWnd, SecondPressOfADoubleClickDoesNotTrack) {
  QTest::mouseClick(view, Qt::LeftButton, {}, {10, 20});
  QTest::mouseDClick(view, Qt::LeftButton, {}, {10, 20});
  EXPECT_EQ(window->calls, "down up double ");
  QTest::mouseRelease(view, Qt::LeftButton, {}, {10, 20});
  EXPECT_EQ(window->calls, "down up double ");
}

TEST_F(MouseWnd, ClientAreaTakesTheSizeAskedFor) {
  window->SetClientSize({123, 77});
  EXPECT_EQ(window->ClientSize(), QSize(123, 77));
}

}  // namespace
}  // namespace plenovia
