#include "images/ui/color_wnd.h"

#include <gtest/gtest.h>

#include <QAbstractScrollArea>
#include <QPointer>
#include <QScrollBar>
#include <QTest>

#include "platform/ui/private_message.h"
#include "testing/picture_compare.h"

namespace plenovia {
namespace {

class Frame : public QWidget {
 public:
  int closed = 0;

 protected:
  bool event(QEvent* event) override {
    if (event->type() != PrivateMessage::EventType()) return QWidget::event(event);
    if (static_cast<PrivateMessage*>(event)->number() == WM_COLORTABLECLOSED) ++closed;
    return true;
  }
};

class ColorWnd : public testing::Test {
 protected:
  ColorWnd() {
    area.resize(600, 600);
    area.show();
    window = new TColorWnd(&area, QStringLiteral("Color Table"), &frame);
    window->show();
    view = window->findChild<QAbstractScrollArea*>(QStringLiteral("client"));
  }
  QColor Shown(int x, int y) {
    const QImage shown = view->viewport()->grab().toImage();
    return shown.pixelColor(QPoint(x, y) * shown.devicePixelRatio());
  }

  Frame frame;
  QMdiArea area;
  QPointer<TColorWnd> window;
  QAbstractScrollArea* view;
};

Palette Colours(int count) {
  Random random(12);
  return RandomPicture(random, 1, 1, count).palette();
}

QColor ToColour(Rgb colour) {
  return {colour.red, colour.green, colour.blue};
}

TEST_F(ColorWnd, TakesTheSizeOfTheGridAndShowsItsColours) {
  EXPECT_EQ(window->GetWindowKind(), kColourTableWindow);
  for (const int count : {256, 20, 256}) {
    window->move(70, 90);
    const Palette palette = Colours(count);
    window->SetSource(palette);
    EXPECT_EQ(window->geometry(), QRect(0, 0, 392, count * 24 / 16 + 30));
    EXPECT_EQ(view->horizontalScrollBar()->maximum(), 0);
    EXPECT_EQ(Shown(24 * 3 + 2, 3), ToColour(palette[3]));
    EXPECT_EQ(Shown(24 * 3, 3), QColor(Qt::black));
  }
}

TEST_F(ColorWnd, ScrollsByPixels) {
  const Palette palette = Colours(256);
  window->SetSource(palette);
  window->resize(200, 150);
  QCoreApplication::processEvents();
  const qreal scale = window->devicePixelRatioF();
  const QSize client = window->ClientSize();
  EXPECT_EQ(view->horizontalScrollBar()->maximum(), qRound(384 * scale) - client.width());
  EXPECT_EQ(view->verticalScrollBar()->maximum(), qRound(384 * scale) - client.height());
  view->horizontalScrollBar()->setValue(qRound(24 * 5 * scale));
  view->verticalScrollBar()->setValue(qRound(24 * 7 * scale));
  EXPECT_EQ(Shown(2, 3), ToColour(palette[7 * 16 + 5]));
}

TEST_F(ColorWnd, TheBitmapHasTheSameSizeOnEveryDisplay) {
  Palette palette = Colours(16);
  palette.Set(2, {255, 0, 0});
  window->SetSource(palette);
  const QImage bitmap = window->MakeBitmap();
  EXPECT_EQ(bitmap.size(), QSize(384, 24));
  int cyan = 0;  // with softened edges
  for (int y = 1; y < 23; ++y) {
    for (int x = 49; x < 71; ++x) cyan += qBlue(bitmap.pixel(x, y)) > 128 ? 1 : 0;
  }
  EXPECT_GT(cyan, 5);
  EXPECT_LT(cyan, 60);
  EXPECT_EQ(bitmap.pixelColor(49, 1), QColor(255, 0, 0));
  window->SetSource(Colours(256));
  EXPECT_EQ(window->MakeBitmap().size(), QSize(384, 384));
}

TEST_F(ColorWnd, TellsTheFrameWhenItCloses) {
  EXPECT_TRUE(window->close());
  EXPECT_EQ(frame.closed, 1);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_TRUE(window.isNull());
}

}  // namespace
}  // namespace plenovia
