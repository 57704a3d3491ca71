#include "app/status_bar.h"

#include <gtest/gtest.h>

#include <QTest>

#include "app/elided_label.h"
#include "platform/free_memory.h"

namespace plenovia {
namespace {

class StatusBar : public testing::Test {
 protected:
  StatusBar() {
    bar.resize(640, bar.sizeHint().height());
    bar.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&bar));
  }
  std::string Text() const { return message->text().toStdString(); }

  TCStatusBar bar{nullptr};
  ElidedLabel* message = bar.findChild<ElidedLabel*>(QStringLiteral("message"));
  QProgressBar* gauge = bar.findChild<QProgressBar*>(QStringLiteral("gauge"));
};

TEST_F(StatusBar, TextBeginsRightOfTheGaugeAndAHintTakesItsPlace) {
  EXPECT_EQ(gauge->size(), QSize(110, 15));
  bar.SetMessage(QStringLiteral("400 x 400 x 256"));
  bar.RepaintNow();
  EXPECT_GE(message->mapTo(&bar, QPoint()).x(), gauge->mapTo(&bar, QPoint(110, 0)).x());

  bar.SetHint(QStringLiteral("Zoom In"));
  bar.RepaintNow();
  EXPECT_EQ(Text(), "Zoom In");
  EXPECT_FALSE(gauge->isVisible());
  EXPECT_LT(message->mapTo(&bar, QPoint()).x(), 20);
  bar.SetMessage(QStringLiteral("done"));
  EXPECT_EQ(Text(), "Zoom In");

  bar.SetHint(QString());
  EXPECT_EQ(Text(), "done");
  EXPECT_TRUE(gauge->isVisible());
}

TEST_F(StatusBar, ProgressBringsTheGaugeBackByTheFlagThatEachHintTurnsOver) {
  bar.ClearHint();
  bar.SetProgress(18);
  EXPECT_TRUE(gauge->isVisible());
  EXPECT_EQ(gauge->value(), 18);
  bar.SetHint(QStringLiteral("one"));
  bar.SetProgress(20);
  EXPECT_TRUE(gauge->isVisible());
  EXPECT_EQ(Text(), "one");
  bar.SetHint(QStringLiteral("two"));
  bar.SetHint(QStringLiteral("three"));
  bar.SetProgress(30);
  EXPECT_FALSE(gauge->isVisible());
  bar.ClearHint();
  EXPECT_TRUE(gauge->isVisible());
  EXPECT_EQ(gauge->value(), 30);
}

TEST_F(StatusBar, FieldsGrowWithTheFontAndLongMessagesLeaveThemTheirRoom) {
  auto* image = bar.findChild<QLabel*>(QStringLiteral("image"));
  auto* free = bar.findChild<QLabel*>(QStringLiteral("free"));
  bar.SetMessage(QString(500, QLatin1Char('w')));
  bar.SetImageText(QStringLiteral("Image: 160 K"));
  bar.SetFreeText(QStringLiteral("Free: 123456789 K"));
  EXPECT_EQ(bar.width(), 640);
  for (const int percent : {100, 150}) {
    QFont font = bar.font();
    font.setPointSizeF(font.pointSizeF() * percent / 100);
    bar.setFont(font);
    bar.RepaintNow();
    const QFontMetrics metrics(font);
    EXPECT_GE(image->width(), metrics.horizontalAdvance(QStringLiteral("Image: 32459 Kb")));
    EXPECT_GE(free->width(), metrics.horizontalAdvance(free->text()));
    EXPECT_TRUE(bar.rect().contains(free->geometry()));
  }
}

TEST_F(StatusBar, ProgressIsPaintedBeforeTheCallReturns) {
  class Paints : public QObject {
   public:
    int count = 0;

   protected:
    bool eventFilter(QObject*, QEvent* event) override {
      count += event->type() == QEvent::Paint;
      return false;
    }
  } paints;
  gauge->installEventFilter(&paints);
  QTest::qWait(1);
  paints.count = 0;
  bar.SetProgress(50);
  EXPECT_GT(paints.count, 0);
}

TEST(FreeMemory, IsAPlausibleNumber) {
  EXPECT_GT(FreeMemoryBytes(), std::int64_t{1} << 20);
  EXPECT_LT(FreeMemoryBytes(), std::int64_t{1} << 50);
}

}  // namespace
}  // namespace plenovia
