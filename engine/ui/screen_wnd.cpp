#include "engine/ui/screen_wnd.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QScreen>
#include <algorithm>

#include "platform/ui/picture_painting.h"

namespace plenovia {

TScreenWnd::TScreenWnd(QWidget* owner, std::shared_ptr<const IndexedImage> picture)
    : QWidget(owner, Qt::Window | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint),
      picture_(std::move(picture)) {
  setObjectName(QStringLiteral("fullScreen"));
  setWindowTitle(tr("Full Screen"));
  setAttribute(Qt::WA_DeleteOnClose);
  setAttribute(Qt::WA_OpaquePaintEvent);
  setCursor(Qt::BlankCursor);
  setGeometry(owner->screen()->geometry());
}

void TScreenWnd::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  UseDevicePixels(painter);
  const QRect exposed = DevicePixels(*this, event->rect());
  painter.fillRect(exposed, Qt::black);
  if (!picture_) return;
  const QSize screen = DevicePixels(*this);
  const QPoint corner(std::max(0, screen.width() / 2 - picture_->width() / 2),
                      std::max(0, screen.height() / 2 - picture_->height() / 2));
  PaintPicture(painter, *picture_, 1.0, corner, exposed);
}

void TScreenWnd::keyPressEvent(QKeyEvent*) {
  keyPressed_ = true;
}

void TScreenWnd::keyReleaseEvent(QKeyEvent* event) {
  // The key that gave the command by the menu may be released here.
  if (!keyPressed_) return;
  if (!event->isAutoRepeat())
    QMetaObject::invokeMethod(this, &QWidget::close, Qt::QueuedConnection);
}

void TScreenWnd::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) {
    QMetaObject::invokeMethod(this, &QWidget::close, Qt::QueuedConnection);
  }
}

}  // namespace plenovia
