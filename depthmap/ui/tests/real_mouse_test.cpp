// The mouse as a real display tells of it, at several scale factors.

#include <QProcess>
#include <QScrollBar>
#include <QtTest/QTest>
#include <utility>
#include <vector>

#include "depthmap/ui/tests/map_window_fixture.h"

namespace plenovia {
namespace {

class RealMouse : public MapWindow {
 protected:
  // The pixel of the display where the map begins: a long black line above white.
  QPoint MapCorner() {
    const QImage screen = area.screen()->grabWindow(0).toImage();
    for (int y = 0; y + 1 < screen.height(); ++y) {
      int edge = 0;
      for (int x = 0; x < screen.width(); ++x) {
        const bool black = screen.pixelColor(x, y) == Qt::black;
        const bool above = screen.pixelColor(x, y + 1) == (edge == 0 ? Qt::black : Qt::white);
        edge = black && above ? edge + 1 : 0;
        if (edge == 100) return {x - 99, y};
      }
    }
    ADD_FAILURE() << "the map is not shown";
    return {};
  }

  void DragOnScreen(QPoint from, QPoint to) {
    const auto place = [](QPoint point) {
      return QStringList{QStringLiteral("mousemove"), QString::number(point.x()),
                         QString::number(point.y())};
    };
    const QStringList down{QStringLiteral("mousedown"), QStringLiteral("1")};
    const QStringList up{QStringLiteral("mouseup"), QStringLiteral("1")};
    const QPoint half = (from + to) / 2;
    QProcess::execute(QStringLiteral("xdotool"), place(from) + down + place(half) + place(to) + up);
  }
};

TEST_F(RealMouse, ReachesEveryPixelOfTheMapAtEachZoom) {
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&area));
  window->RunCommand(kSquareBoxTool);
  const auto* client = window->findChild<QAbstractScrollArea*>(QStringLiteral("client"));
  using Place = std::pair<QPoint, std::vector<int>>;
  for (const auto& [place, zooms] : {Place{{0, 0}, {}},
                                     {{13, 7}, {kCmZoomOut}},
                                     {{5, 9}, {kCmActualSize, kCmZoomIn, kCmZoomIn}}}) {
    window->move(place);
    for (const int zoom : zooms) window->RunCommand(zoom);
    for (QScrollBar* bar : {client->horizontalScrollBar(), client->verticalScrollBar()}) {
      bar->setValue(0);
    }
    QTest::qWait(300);  // until it is seen there
    const QPoint corner = MapCorner();
    const MapScale scale = window->Look().scale;
    const auto onMap = [&](QPoint shown) {
      return QPoint(static_cast<int>(scale.MapPixel(shown.x())),
                    static_cast<int>(scale.MapPixel(shown.y())));
    };
    for (const QPoint from : {QPoint(20, 20), {31, 33}, {42, 67}, {113, 110}}) {
      const QPoint to = from + QPoint(57, 40);
      const auto before = window->Objects().CountObjects();
      DragOnScreen(corner + from, corner + to);
      EXPECT_TRUE(QTest::qWaitFor([&] { return window->Objects().CountObjects() > before; }));
      const auto [x1, y1, x2, y2] = window->Objects().Head()->GetRect();
      EXPECT_EQ(QPoint(x1, y1), onMap(from));
      EXPECT_EQ(QPoint(x2, y2), onMap(to));
    }
  }
}

}  // namespace
}  // namespace plenovia
