// A hand that works with the mouse on a depth map's editor.
#pragma once

#include <QAbstractScrollArea>
#include <QCoreApplication>
#include <QLineEdit>
#include <QMouseEvent>
#include <QWheelEvent>
#include <string>
#include <vector>

#include "depthmap/ui/map_window.h"
#include "testing/ui/dialog_answers.h"

namespace plenovia {

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

// Points are those of the map.
class MapHand {
 public:
  virtual ~MapHand() = default;

 protected:
  // How commands reach the window.
  virtual void Give(int command) { window->RunCommand(command); }

  QWidget* View() const {
    return window->findChild<QAbstractScrollArea*>(QStringLiteral("client"))->viewport();
  }

  void Mouse(QEvent::Type type, QPointF at, Qt::MouseButton button, Qt::MouseButtons buttons,
             Qt::KeyboardModifiers keys = {}) {
    const qreal scale = View()->devicePixelRatioF();
    const QPointF corner = QPointF(View()->mapTo(View()->window(), QPoint())) * scale;
    const QPointF inWindow = (QPointF(corner.toPoint()) + at) / scale;
    QMouseEvent event(type, at / scale, inWindow, View()->window()->mapToGlobal(inWindow), button,
                      buttons, keys);
    QCoreApplication::sendEvent(View(), &event);
  }
  // Turns the wheel with Ctrl held.
  void Wheel(QPointF at, int notches) {
    const qreal scale = View()->devicePixelRatioF();
    const QPointF corner = QPointF(View()->mapTo(View()->window(), QPoint())) * scale;
    const QPointF inWindow = (QPointF(corner.toPoint()) + at) / scale;
    QWheelEvent event(at / scale, View()->window()->mapToGlobal(inWindow), {},
                      {0, notches * QWheelEvent::DefaultDeltasPerStep}, Qt::NoButton,
                      Qt::ControlModifier, Qt::NoScrollPhase, false);
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
    Give(tool);
    Drag(from, to);
  }
  void SetLevel(int level) {
    DialogAnswers answers;
    answers.Add([=](QDialog& dialog) {
      dialog.findChild<QLineEdit*>(QStringLiteral("level"))->setText(QString::number(level));
      dialog.accept();
    });
    Give(kSetLevel);
  }

  TMapWindow* window = nullptr;
};

}  // namespace plenovia
