// Where document windows are, how large, and what of their pictures they show.

#include <QAbstractScrollArea>
#include <QScreen>
#include <QScrollBar>
#include <QStyleOptionTitleBar>
#include <QtTest/QTest>
#include <algorithm>

#include "app/tests/program.h"

namespace plenovia {
namespace {

class WindowPlaces : public ProgramTest {
 protected:
  WindowPlaces() {
    WriteSettings("[WinSize]\nX1=0\nY1=0\nX2=640\nY2=480\n");
    Start();
    // What the window manager adds to the frame is known a little later.
    const QSize place = QSize(640, 480).boundedTo(Frame().screen()->virtualSize());
    EXPECT_TRUE(QTest::qWaitFor([&] { return Frame().frameGeometry().size() == place; }));
  }

  QRect Desk() { return Frame().Area()->viewport()->rect(); }
  QAbstractScrollArea* View(const TMouseWnd& window) {
    return window.findChild<QAbstractScrollArea*>(QStringLiteral("client"));
  }
  // What of the title shows its text, where the window can be held.
  QRect TitleText(const QMdiSubWindow& window) {
    QStyleOptionTitleBar title;
    title.initFrom(&window);
    title.rect.setHeight(window.style()->pixelMetric(QStyle::PM_TitleBarHeight, &title, &window));
    title.titleBarFlags = window.windowFlags();
    title.subControls = QStyle::SC_All;
    return window.style()->subControlRect(QStyle::CC_TitleBar, &title, QStyle::SC_TitleBarLabel,
                                          &window);
  }
};

TEST_F(WindowPlaces, NewWindowsLieOnTheDeskAndCanBeHeld) {
  // One that hangs out lets the desk scroll.
  AddPicture(NoisePicture(60, 40, 4))->move(Desk().bottomRight() + QPoint(200, 300));
  Settle();
  Frame().Area()->verticalScrollBar()->setValue(200);
  Frame().Area()->horizontalScrollBar()->setValue(150);
  for (const QSize size : {QSize(1, 1), {30, 12}, {300, 2000}, {3000, 20}, {2500, 1500}}) {
    const TSirdsWnd* window = AddPicture(NoisePicture(size.width(), size.height(), 4));
    EXPECT_TRUE(Desk().contains(window->geometry())) << size.width() << " x " << size.height();
    EXPECT_GE(TitleText(*window).width(), 20) << size.width() << " x " << size.height();
    const QSize shown = window->ClientSize();
    if (size.height() < 1000 && size.width() > 1000) {
      EXPECT_EQ(shown.height(), size.height());
    }
    if (size.width() < 1000 && size.height() > 1000) {
      EXPECT_EQ(shown.width(), size.width());
    }
  }
}

TEST_F(WindowPlaces, CascadedWindowsKeepTheirSizesAndTitles) {
  QList<QSize> sizes;
  QList<TSirdsWnd*> windows;
  for (const QSize size : {QSize(300, 200), {60, 40}, {200, 180}}) {
    windows << AddPicture(NoisePicture(size.width(), size.height(), 4));
    sizes << windows.back()->size();
  }
  windows[2]->showMinimized();
  Settle();
  windows[1]->showMaximized();
  windows[0]->resize(sizes[0] = Desk().size() + QSize(0, 50));
  ASSERT_TRUE(windows[2]->isMinimized());
  Run(kCmCascade);
  Settle();
  EXPECT_EQ(windows[0]->size(), sizes[0]);
  EXPECT_EQ(windows[1]->size(), sizes[1]);
  EXPECT_TRUE(windows[2]->isMinimized());
  EXPECT_NE(windows[0]->y(), windows[1]->y());
  for (const auto* window : {windows[0], windows[1]}) {
    EXPECT_TRUE(Desk().contains(TitleText(*window).translated(window->pos())));
  }
}

TEST_F(WindowPlaces, ZoomingKeepsThePointInTheMiddle) {
  TSirdsWnd* window = AddPicture(NoisePicture(900, 700, 16));
  window->SetClientSize({211, 151});
  const auto* view = View(*window);
  view->horizontalScrollBar()->setValue(400);
  view->verticalScrollBar()->setValue(333);
  const auto middle = [&] {
    const QSize client = window->ClientSize();
    return QPointF(view->horizontalScrollBar()->value() + client.width() / 2.0,
                   view->verticalScrollBar()->value() + client.height() / 2.0) /
           window->Zoom();
  };
  const QPointF before = middle();
  for (const int command : {kCmZoomIn, kCmZoomIn, kCmZoomOut, kCmZoomOut, kCmZoomOut, kCmZoomIn}) {
    Run(command);
    EXPECT_LE((middle() - before).manhattanLength(), 2) << window->Zoom();
  }
}

TEST_F(WindowPlaces, TheWheelZoomsAboutTheMouse) {
  TSirdsWnd* window = AddPicture(NoisePicture(900, 700, 16));
  window->SetClientSize({211, 151});
  const auto* view = View(*window);
  view->horizontalScrollBar()->setValue(400);
  view->verticalScrollBar()->setValue(333);
  const QPoint mouse(60, 110);
  const auto place = [&] {
    const QPoint scrolled(view->horizontalScrollBar()->value(), view->verticalScrollBar()->value());
    return QPointF(scrolled + mouse) / window->Zoom();
  };
  const QPointF before = place();
  const qreal scale = view->devicePixelRatioF();
  for (const auto& [notches, zoom] : {std::pair(1, 2.0), {5, 4.0}, {-2, 1.0}}) {
    const QPointF at = (QPointF(mouse) + QPointF(0.5, 0.5)) / scale;
    QWheelEvent event(at, view->viewport()->mapToGlobal(at), {},
                      {0, notches * QWheelEvent::DefaultDeltasPerStep}, Qt::NoButton,
                      Qt::ControlModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(view->viewport(), &event);
    EXPECT_EQ(window->Zoom(), zoom);
    EXPECT_LE((place() - before).manhattanLength(), 2) << zoom;
  }
}

TEST_F(WindowPlaces, WhatIsShownFollowsThePicture) {
  TSirdsWnd* window = AddPicture(NoisePicture(300, 250, 64));
  window->SetClientSize({140, 120});
  const auto* view = View(*window);
  const auto expectShown = [&](const char* after) {
    const QImage shown = view->viewport()->grab().toImage();
    const IndexedImage& picture = *window->Picture();
    int wrong = 0;
    for (int y = 0; y < 80; ++y) {
      for (int x = 0; x < 100; ++x) {
        const int row = static_cast<int>((y + view->verticalScrollBar()->value()) / window->Zoom());
        const auto column =
            static_cast<std::size_t>((x + view->horizontalScrollBar()->value()) / window->Zoom());
        const Rgb colour = picture.palette()[picture.Row(row)[column]];
        if (shown.pixel(x, y) != qRgb(colour.red, colour.green, colour.blue)) ++wrong;
      }
    }
    EXPECT_EQ(wrong, 0) << after;
  };
  expectShown("opening");
  view->horizontalScrollBar()->setValue(37);
  view->verticalScrollBar()->setValue(21);
  expectShown("scrolling");
  Run(kCmGrayImage);
  expectShown("other colours");
  Run(kCmZoomIn);
  expectShown("zooming");
}

TEST_F(WindowPlaces, AMaximisedPictureIsCentredWithItsHalvesCutOff) {
  for (const int side : {100, 101, 102, 103}) {
    TSirdsWnd* window = AddPicture(std::make_shared<const IndexedImage>(
        IndexedImage::Create(side, side, Palette::Grays(2)).value()));
    auto white = *window->Picture();
    std::ranges::fill(white.pixels(), std::uint8_t{1});
    window->SetImage(std::make_shared<const IndexedImage>(std::move(white)));
    window->showMaximized();
    Settle();
    const QImage shown = View(*window)->viewport()->grab().toImage();
    const QSize client = window->ClientSize();
    const QPoint corner(static_cast<int>(client.width() / 2 - side * 0.5),
                        static_cast<int>(client.height() / 2 - side * 0.5));
    EXPECT_EQ(shown.pixelColor(corner), Qt::white);
    EXPECT_EQ(shown.pixelColor(corner - QPoint(1, 0)), Qt::black);
    EXPECT_EQ(shown.pixelColor(corner - QPoint(0, 1)), Qt::black);
  }
}

}  // namespace
}  // namespace plenovia
