#include "images/ui/popup_hint.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QTest>

namespace plenovia {
namespace {

TEST(HintPlace, IsBelowTheCursorAndNeverPassesTheRightAndBottomEdges) {
  const QRect window(100, 50, 640, 480);
  const QSize text(80, 14);
  struct Case {
    QPoint cursor;
    QRect place;
  };
  const Case cases[] = {
      {{200, 90}, {108, 60, 92, 22}},     // free on all sides
      {{640, 90}, {548, 60, 92, 22}},     // just fits at the right
      {{641, 90}, {548, 60, 92, 22}},     // moved left by one
      {{735, 90}, {548, 60, 92, 22}},     // at the right edge
      {{200, 480}, {108, 450, 92, 22}},   // just fits at the bottom
      {{739, 529}, {548, 450, 92, 22}},   // in the corner
      {{-200, 20}, {-292, -10, 92, 22}},  // outside, at the left and above
  };
  for (const auto& [cursor, place] : cases) {
    EXPECT_EQ(HintPlace(cursor, text, window), place) << cursor.x() << ", " << cursor.y();
  }
}

class Hint : public testing::Test {
 protected:
  Hint() {
    frame.resize(400, 300);
    frame.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&frame));
    clock.start();
  }

  static QString Text(int command) {
    return command == 9 ? QStringLiteral("x") : QStringLiteral("Hint of %1").arg(command);
  }
  // Milliseconds until the hint is as asked for.
  qint64 WaitFor(bool visible, int most) {
    clock.restart();
    EXPECT_TRUE(QTest::qWaitFor([&] { return hint.isVisible() == visible; }, most));
    return clock.elapsed();
  }

  QWidget frame;
  PopupHint hint{&frame, &Hint::Text};
  QElapsedTimer clock;
};

TEST_F(Hint, ComesAfterADelayAndGoesByItself) {
  hint.Report(101);
  EXPECT_TRUE(hint.IsShown());
  EXPECT_FALSE(hint.isVisible());
  EXPECT_GE(WaitFor(true, 2000), 200);
  EXPECT_TRUE(frame.rect().contains(hint.geometry()));
  const QImage box = hint.grab().toImage();
  EXPECT_EQ(box.pixelColor(0, 0), QColor(Qt::black));
  EXPECT_EQ(box.pixelColor(2, 2), QColor(128, 255, 128));

  hint.Report(101);
  EXPECT_TRUE(hint.isVisible()) << "moving on the same button leaves it alone";
  EXPECT_GE(WaitFor(false, 4000), 1300);
  EXPECT_FALSE(hint.IsShown());
  hint.Report(101);
  EXPECT_FALSE(hint.IsShown()) << "it comes again only after the mouse was elsewhere";
  hint.Report(-1);
  hint.Report(101);
  EXPECT_TRUE(hint.IsShown());
}

TEST_F(Hint, LeavingWithinTheDelayShowsNothing) {
  hint.Report(101);
  QTest::qWait(100);
  hint.Report(0);
  QTest::qWait(300);
  EXPECT_FALSE(hint.isVisible());
  EXPECT_EQ(hint.CurrentId(), PopupHint::kNoCommand);
}

TEST_F(Hint, AnotherButtonStartsTheDelayAnew) {
  hint.Report(101);
  QTest::qWait(150);
  hint.Report(102);
  EXPECT_GE(WaitFor(true, 2000), 200);
  EXPECT_EQ(hint.CurrentId(), 102);
  hint.Report(103);
  EXPECT_FALSE(hint.isVisible());
  EXPECT_GE(WaitFor(true, 2000), 200);
  EXPECT_EQ(hint.CurrentId(), 103);
  hint.Report(-1);
  EXPECT_FALSE(hint.isVisible());
}

TEST_F(Hint, CommandsWithoutATextHaveNone) {
  hint.Show(9);
  hint.Show(9);
  EXPECT_FALSE(hint.isVisible());
  hint.Hide();
  hint.Show(102);
  hint.Show(102);
  EXPECT_TRUE(hint.isVisible()) << "a second call completes the delay";
}

}  // namespace
}  // namespace plenovia
