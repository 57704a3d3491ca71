// A depth map's editor in a document area, with a hand and eyes.
#pragma once

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QScreen>
#include <string>
#include <vector>

#include "depthmap/ui/map_window.h"
#include "depthmap/ui/tests/map_hand.h"
#include "platform/ui/private_message.h"
#include "platform/ui/text.h"
#include "testing/temp_folder.h"
#include "testing/ui/dialog_answers.h"

namespace plenovia {

inline const QString kUntitled = QStringLiteral("untitled");

// Keeps the private messages; saves a window that asks for it to `savePath`.
class Frame : public QWidget {
 public:
  std::vector<int> messages;
  QString savePath;

 protected:
  void customEvent(QEvent* event) override {
    if (event->type() != PrivateMessage::EventType()) return;
    const auto& message = *static_cast<PrivateMessage*>(event);
    messages.push_back(message.number());
    if (message.number() != WM_SAVECHILD || savePath.isEmpty()) return;
    static_cast<void>(static_cast<TMapWindow*>(message.window())->WriteDepthMap(savePath));
  }
};

class MapWindow : public testing::Test, protected MapHand {
 protected:
  MapWindow() {
    area.resize(700, 600);
    area.show();
    window = Open(400, 400);
  }

  TMapWindow* Open(int width, int height) {
    auto* opened = new TMapWindow(&area, kUntitled, width, height, &frame);
    opened->show();
    QCoreApplication::processEvents();
    return opened;
  }

  std::string Top() const { return Text(*window->Objects().Head()); }
  std::string Stack() const {
    std::string levels;
    for (auto* object = window->Objects().Head(); object != nullptr;
         object = TDepthList::Below(*object)) {
      levels += std::to_string(object->GetLevel()) + (object->GetLevel() == 0 ? "" : " ");
    }
    return levels;
  }

  // What has been painted on the screen up to now is what painting all of it would give.
  void ExpectScreenUpToDate(const std::string& after) {
    QCoreApplication::processEvents();
    const QPoint corner = View()->mapTo(&area, QPoint());
    const QImage screen =
        area.screen()
            ->grabWindow(area.winId(), corner.x(), corner.y(), View()->width(), View()->height())
            .toImage()
            .convertToFormat(QImage::Format_RGB32);
    const QImage fresh = View()->grab().toImage().convertToFormat(QImage::Format_RGB32);
    ASSERT_EQ(screen.size(), fresh.size());
    for (int y = 0; y < fresh.height(); ++y) {
      for (int x = 0; x < fresh.width(); ++x) {
        ASSERT_EQ(screen.pixel(x, y), fresh.pixel(x, y)) << after << " at " << x << "," << y;
      }
    }
  }

  QMdiArea area;
  Frame frame;
  TempFolder folder;
};

}  // namespace plenovia
