#include "documents/ui/panning.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <utility>

#include "platform/ui/picture_painting.h"

namespace plenovia {

Panning::Panning(QAbstractScrollArea& area) : QObject(&area), area_(area) {
  area.installEventFilter(this);
  area.viewport()->installEventFilter(this);
}

bool Panning::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
      return watched == &area_ &&
             Key(*static_cast<QKeyEvent*>(event), event->type() == QEvent::KeyPress);
    case QEvent::FocusOut:
    case QEvent::WindowBlocked:
      button_ = Qt::NoButton;
      HoldSpace(false);
      return false;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseMove:
      return watched == area_.viewport() && Mouse(*static_cast<QMouseEvent*>(event));
    default:
      return false;
  }
}

bool Panning::CanPan() const {
  return area_.horizontalScrollBar()->maximum() > 0 || area_.verticalScrollBar()->maximum() > 0;
}

void Panning::HoldSpace(bool held) {
  if (std::exchange(space_, held) == held) return;
  if (held) cursor_ = area_.viewport()->cursor();
  area_.viewport()->setCursor(held ? QCursor(Qt::OpenHandCursor) : cursor_);
}

bool Panning::Key(const QKeyEvent& event, bool pressed) {
  if (event.key() != Qt::Key_Space || event.modifiers() != Qt::NoModifier) return false;
  if (event.isAutoRepeat()) return space_;
  if (pressed && !CanPan()) return false;
  HoldSpace(pressed);
  return true;
}

bool Panning::Mouse(const QMouseEvent& event) {
  if (event.type() == QEvent::MouseMove) {
    if (button_ == Qt::NoButton) return false;
    if (!(event.buttons() & button_)) {
      button_ = Qt::NoButton;  // its release went elsewhere
      return false;
    }
    const QPoint way = DevicePixelAt(*area_.viewport(), event) - from_;
    area_.horizontalScrollBar()->setValue(scrolled_.x() - way.x());
    area_.verticalScrollBar()->setValue(scrolled_.y() - way.y());
    return true;
  }
  if (event.type() == QEvent::MouseButtonRelease) {
    if (button_ == Qt::NoButton || event.button() != button_) return false;
    button_ = Qt::NoButton;
    return true;
  }
  if (button_ != Qt::NoButton) return true;  // another button while it pans
  const bool pans =
      event.button() == Qt::MiddleButton || (event.button() == Qt::LeftButton && space_);
  if (!pans || !CanPan()) return false;
  button_ = event.button();
  from_ = DevicePixelAt(*area_.viewport(), event);
  scrolled_ = {area_.horizontalScrollBar()->value(), area_.verticalScrollBar()->value()};
  return true;
}

}  // namespace plenovia
