#include "app/tests/monkey/pokes.h"

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPointer>
#include <QWheelEvent>
#include <QWindow>
#include <QtTest/QTest>
#include <algorithm>
#include <utility>

namespace plenovia {

namespace {

constexpr Qt::KeyboardModifier kModifiers[] = {Qt::ShiftModifier, Qt::ControlModifier,
                                               Qt::AltModifier};
constexpr Qt::Key kKeys[] = {
    Qt::Key_Escape, Qt::Key_Return, Qt::Key_Tab,       Qt::Key_Space, Qt::Key_Delete,
    Qt::Key_Left,   Qt::Key_Right,  Qt::Key_Up,        Qt::Key_Down,  Qt::Key_PageDown,
    Qt::Key_Home,   Qt::Key_End,    Qt::Key_F1,        Qt::Key_F4,    Qt::Key_F6,
    Qt::Key_F10,    Qt::Key_Insert, Qt::Key_Backspace, Qt::Key_A,     Qt::Key_C,
    Qt::Key_V,      Qt::Key_Z,      Qt::Key_F,         Qt::Key_G,     Qt::Key_M,
    Qt::Key_W,      Qt::Key_Minus,  Qt::Key_Plus,      Qt::Key_Alt,   Qt::Key_Menu};

Qt::KeyboardModifiers AnyModifiers(Chance& chance) {
  return chance.OneIn(5) ? Qt::KeyboardModifiers(chance.Pick(kModifiers)) : Qt::NoModifier;
}

// The mouse over one window, which may go at any event.
class Mouse {
 public:
  Mouse(QWidget& widget, QPoint begin, Chance& chance)
      : chance_(chance),
        widget_(&widget),
        window_(widget.window()->windowHandle()),
        begin_(widget.mapTo(widget.window(), begin)),
        modifiers_(AnyModifiers(chance)) {}

  void Click(Qt::MouseButton button) {
    if (Ready()) QTest::mousePress(window_, button, modifiers_, begin_);
    if (Ready()) QTest::mouseRelease(window_, button, modifiers_, begin_);
  }
  void DoubleClick(Qt::MouseButton button) {
    // QTest's own goes on in a window that the first click has closed.
    const int interval = QApplication::doubleClickInterval();
    QApplication::setDoubleClickInterval(10 * interval);
    Click(button);
    Click(button);
    QApplication::setDoubleClickInterval(interval);
  }
  void Drag(Qt::MouseButton button) {
    if (Ready()) QTest::mousePress(window_, button, modifiers_, begin_);
    Move();
    const QPoint end = Inside(begin_ + Way());
    if (Ready()) QTest::mouseRelease(window_, button, modifiers_, end);
  }
  void Move() {
    for (int i = chance_.Int(1, 5); i > 0; --i) {
      if (Ready()) QTest::mouseMove(window_, Inside(begin_ + Way()));
    }
  }
  void Wheel() {
    if (!Ready() || widget_.isNull()) return;
    const QPoint turn(chance_.OneIn(4) ? 120 : 0, 120 * chance_.Int(-3, 3));
    const QPoint global = window_->mapToGlobal(begin_);
    QWheelEvent event(QPointF(widget_->mapFromGlobal(global)), QPointF(global), {}, turn,
                      Qt::NoButton, modifiers_, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(widget_, &event);
  }

 private:
  bool Ready() const { return window_ && window_->isVisible() && Area().contains(begin_); }
  QRect Area() const { return {QPoint(), window_->size()}; }
  QPoint Way() { return {chance_.Int(-200, 200), chance_.Int(-200, 200)}; }
  QPoint Inside(QPoint point) const {
    if (!window_) return point;
    return {std::clamp(point.x(), 0, std::max(0, window_->width() - 1)),
            std::clamp(point.y(), 0, std::max(0, window_->height() - 1))};
  }

  Chance& chance_;
  QPointer<QWidget> widget_;
  QPointer<QWindow> window_;
  QPoint begin_;
  Qt::KeyboardModifiers modifiers_;
};

void SendKey(const QPointer<QWindow>& window, bool press, Qt::Key key,
             Qt::KeyboardModifiers modifiers) {
  if (!window) return;
  const char letter = QTest::keyToAscii(key);
  const QString text = letter != 0 ? QString(QLatin1Char(letter)) : QString();
  QTest::simulateEvent(window, press, key, modifiers, text, false);
}

void PokeField(QLineEdit& field, Chance& chance) {
  if (chance.OneIn(3)) {
    UseKeys(field, chance);
  } else {
    field.setText(chance.Text());
  }
}

}  // namespace

QWidget* AnyWidgetIn(QWidget& window, Chance& chance) {
  QList<QWidget*> usable;
  for (QWidget* child : window.findChildren<QWidget*>()) {
    if (child->isVisible() && child->isEnabled() && child->window() == window.window()) {
      usable << child;
    }
  }
  return usable.isEmpty() ? &window : chance.Pick(usable);
}

void Click(QWidget& widget, QPoint place, Chance& chance) {
  Mouse(widget, place, chance).Click(Qt::LeftButton);
}

void UseMouse(QWidget& widget, Chance& chance) {
  Mouse mouse(widget, chance.In(widget.rect()), chance);
  const Qt::MouseButton button = chance.OneIn(5)    ? Qt::RightButton
                                 : chance.OneIn(20) ? Qt::MiddleButton
                                                    : Qt::LeftButton;
  switch (chance.Int(0, 7)) {
    case 0:
    case 1:
      return mouse.Click(button);
    case 2:
      return mouse.DoubleClick(button);
    case 3:
      return mouse.Move();
    case 4:
      return mouse.Wheel();
    default:
      return mouse.Drag(button);
  }
}

void StrikeKey(const QPointer<QWindow>& window, Qt::Key key, Qt::KeyboardModifiers modifiers) {
  // QTest's own goes on in a window that the first of several events has closed.
  constexpr std::pair<Qt::KeyboardModifier, Qt::Key> kModifierKeys[] = {
      {Qt::ShiftModifier, Qt::Key_Shift},
      {Qt::ControlModifier, Qt::Key_Control},
      {Qt::AltModifier, Qt::Key_Alt}};
  for (const auto& [modifier, modifierKey] : kModifierKeys) {
    if ((modifiers & modifier) != 0) SendKey(window, true, modifierKey, Qt::NoModifier);
  }
  SendKey(window, true, key, modifiers);
  SendKey(window, false, key, modifiers);
  for (const auto& [modifier, modifierKey] : kModifierKeys) {
    if ((modifiers & modifier) != 0) SendKey(window, false, modifierKey, modifiers);
  }
}

void UseKeys(QWidget& window, Chance& chance) {
  const QPointer<QWindow> receiver = window.window()->windowHandle();
  for (int i = chance.Int(1, 4); i > 0 && receiver && receiver->isVisible(); --i) {
    StrikeKey(receiver, chance.Pick(kKeys), AnyModifiers(chance));
  }
}

void Poke(QWidget& widget, Chance& chance) {
  if (chance.OneIn(3)) return UseMouse(widget, chance);
  if (auto* button = qobject_cast<QAbstractButton*>(&widget)) {
    button->click();
  } else if (auto* field = qobject_cast<QLineEdit*>(&widget)) {
    PokeField(*field, chance);
  } else if (auto* box = qobject_cast<QComboBox*>(&widget)) {
    if (box->count() > 0) box->setCurrentIndex(chance.Int(0, box->count() - 1));
  } else if (auto* list = qobject_cast<QListWidget*>(&widget)) {
    list->setCurrentRow(chance.Int(-1, list->count() - 1));
  } else if (auto* slider = qobject_cast<QAbstractSlider*>(&widget)) {
    slider->setValue(chance.Int(slider->minimum(), slider->maximum()));
  } else {
    UseMouse(widget, chance);
  }
}

}  // namespace plenovia
