#include "depthmap/ui/level_keys.h"

#include <algorithm>
#include <chrono>

#include "depthmap/level_choice.h"
#include "depthmap/ui/map_window.h"

namespace plenovia {

namespace {

constexpr std::chrono::milliseconds kPause{700};
constexpr int kLargeStep = 10;

}  // namespace

LevelKeys::LevelKeys(TMapWindow& window, QWidget& view, QWidget& viewport)
    : QObject(&window), window_(window) {
  view.installEventFilter(this);
  viewport.installEventFilter(this);
  pause_.setSingleShot(true);
  pause_.setInterval(kPause);
  connect(&pause_, &QTimer::timeout, this, &LevelKeys::TakeTyped);
}

bool LevelKeys::eventFilter(QObject*, QEvent* event) {
  if (event->type() == QEvent::KeyPress) return KeyPressed(*static_cast<QKeyEvent*>(event));
  if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::FocusOut) TakeTyped();
  return false;
}

bool LevelKeys::KeyPressed(const QKeyEvent& event) {
  if (event.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) return false;
  const bool large = event.modifiers().testFlag(Qt::ShiftModifier);
  const int key = event.key();
  if (key >= Qt::Key_0 && key <= Qt::Key_9 && !large) {
    Q_EMIT window_.Told(tr("Level %1").arg(entry_.Type(key - Qt::Key_0)));
    pause_.start();
    return true;
  }
  const bool typing = pause_.isActive();
  TakeTyped();
  switch (key) {
    case Qt::Key_Plus:
    case Qt::Key_Equal:
    case Qt::Key_Asterisk:  // "+" with Shift on some keyboards
      Step(large ? kLargeStep : 1);
      return true;
    case Qt::Key_Minus:
    case Qt::Key_Underscore:
      Step(large ? -kLargeStep : -1);
      return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return typing;
    default:
      return false;
  }
}

void LevelKeys::Step(int by) {
  const std::int64_t level = std::int64_t{window_.LevelAtHand()} + by;
  window_.SetLevelAtHand(
      static_cast<std::int32_t>(std::clamp<std::int64_t>(level, kLowestLevel, kHighestLevel)));
}

void LevelKeys::TakeTyped() {
  pause_.stop();
  if (const auto level = entry_.Take()) window_.SetLevelAtHand(*level);
}

}  // namespace plenovia
