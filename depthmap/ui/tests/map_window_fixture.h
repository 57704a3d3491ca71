// A depth map's editor in a document area, with a mouse and eyes.
#pragma once

#include <gtest/gtest.h>

#include <QAbstractScrollArea>
#include <QCoreApplication>
#include <QLineEdit>
#include <QMouseEvent>
#include <QScreen>
#include <string>
#include <vector>

#include "depthmap/ui/map_window.h"
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

// "kind(x1,y1,x2,y2)=level" of an object; its vertices instead of its corners where it has some.
inline std::string Text(const TDepthObj& object) {
  const auto [x1, y1, x2, y2] = object.GetRect();
  std::vector<std::int32_t> numbers{x1, y1, x2, y2};
  if (object.GetKind() == PolygonObj) numbers.clear();
  for (const auto& [x, y] : object.GetPoints()) numbers.insert(numbers.end(), {x, y});
  std::string text = std::to_string(object.GetKind()) + "(";
  for (const std::int32_t number : numbers) text += std::to_string(number) + ",";
  text.back() = ')';
  return text + "=" + std::to_string(object.GetLevel());
}

class MapWindow : public testing::Test {
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

  QWidget* View() const {
    return window->findChild<QAbstractScrollArea*>(QStringLiteral("client"))->viewport();
  }

  // `at` is a point of the map.
  void Mouse(QEvent::Type type, QPointF at, Qt::MouseButton button, Qt::MouseButtons buttons,
             Qt::KeyboardModifiers keys = {}) {
    const QPointF place = at / View()->devicePixelRatioF();
    QMouseEvent event(type, place, View()->mapToGlobal(place), button, buttons, keys);
    QCoreApplication::sendEvent(View(), &event);
  }
  void Press(QPoint at, Qt::KeyboardModifiers keys = {}) {
    Mouse(QEvent::MouseButtonPress, at, Qt::LeftButton, Qt::LeftButton, keys);
  }
  void Release(QPoint at) { Mouse(QEvent::MouseButtonRelease, at, Qt::LeftButton, Qt::NoButton); }
  void Pull(QPoint to, Qt::KeyboardModifiers keys = {}) {
    Mouse(QEvent::MouseMove, to, Qt::NoButton, Qt::LeftButton, keys);
  }
  void Hover(QPoint to) { Mouse(QEvent::MouseMove, to, Qt::NoButton, Qt::NoButton); }
  void Click(QPoint at) {
    Press(at);
    Release(at);
  }
  void DoubleClick(QPoint at) {
    Click(at);
    Mouse(QEvent::MouseButtonDblClick, at, Qt::LeftButton, Qt::LeftButton);
    Release(at);
  }
  void Drag(QPoint from, QPoint to) {
    Press(from);
    Pull((from + to) / 2);
    Pull(to);
    Release(to);
  }
  void Draw(int tool, int level, QPoint from, QPoint to) {
    SetLevel(level);
    window->RunCommand(tool);
    Drag(from, to);
  }
  void SetLevel(int level) {
    DialogAnswers answers;
    answers.Add([=](QDialog& dialog) {
      dialog.findChild<QLineEdit*>(QStringLiteral("level"))->setText(QString::number(level));
      dialog.accept();
    });
    window->RunCommand(kSetLevel);
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
  TMapWindow* window;
  TempFolder folder;
};

}  // namespace plenovia
