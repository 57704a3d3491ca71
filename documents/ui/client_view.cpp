#include "documents/ui/client_view.h"

#include <QEvent>
#include <QPaintEvent>
#include <QScrollBar>
#include <QStyle>
#include <algorithm>

#include "documents/ui/panning.h"
#include "platform/ui/picture_painting.h"

namespace plenovia {

TMouseWnd::ClientView::ClientView(TMouseWnd& window)
    : QAbstractScrollArea(&window), window_(window) {
  setObjectName(QStringLiteral("client"));
  setFrameShape(QFrame::NoFrame);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  viewport()->setMouseTracking(true);
  viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
  viewport()->setObjectName(QStringLiteral("viewport"));
  new Panning(*this);
}

void TMouseWnd::ClientView::SetScrollExtent(const QSize& extent) {
  extent_ = extent;
  setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  UpdateRanges();
  viewport()->update();
}

QSize TMouseWnd::ClientView::Room() const {
  return DevicePixels(*this, QRect(QPoint(), maximumViewportSize())).size();
}

void TMouseWnd::ClientView::UpdateRanges() {
  // What fits when both bars are gone needs none, though it does not fit beside them.
  const QSize most = Room();
  const bool fits = extent_.width() <= most.width() && extent_.height() <= most.height();
  const QSize client = fits ? most : DevicePixels(*viewport());
  const auto update = [](QScrollBar* bar, int extent, int page) {
    bar->setRange(0, std::max(0, extent - page));
    bar->setPageStep(page);
    bar->setSingleStep(20);
  };
  update(horizontalScrollBar(), extent_.width(), client.width());
  update(verticalScrollBar(), extent_.height(), client.height());
}

QSize TMouseWnd::ClientView::WithBars(QSize client, const QSize& room) const {
  const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
  const bool tall = client.height() > room.height();
  if (client.width() > room.width()) client.rheight() += bar;
  if (tall) client.rwidth() += bar;
  return client.boundedTo(room);
}

bool TMouseWnd::ClientView::event(QEvent* event) {
  // Before Qt takes Tab for itself.
  if (event->type() == QEvent::KeyPress && window_.KeyPressed(*static_cast<QKeyEvent*>(event))) {
    return true;
  }
  return QAbstractScrollArea::event(event);
}

bool TMouseWnd::ClientView::viewportEvent(QEvent* event) {
  switch (event->type()) {
    case QEvent::Paint:
      PaintClient(static_cast<QPaintEvent*>(event)->rect());
      return true;
    case QEvent::Resize:
      UpdateRanges();
      window_.ClientResized();
      return QAbstractScrollArea::viewportEvent(event);
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
      return MouseEvent(*static_cast<QMouseEvent*>(event));
    case QEvent::Wheel:
      return WheelEvent(*static_cast<QWheelEvent*>(event));
    case QEvent::WindowBlocked:
      window_.EndLostTracks(Qt::NoButton);
      return QAbstractScrollArea::viewportEvent(event);
    default:
      return QAbstractScrollArea::viewportEvent(event);
  }
}

void TMouseWnd::ClientView::scrollContentsBy(int, int) {
  viewport()->update();
}

bool TMouseWnd::ClientView::MouseEvent(const QMouseEvent& event) {
  const MouseKeys keys{event.buttons(), event.modifiers()};
  const QPoint point = window_.TrackingPoint(DevicePixelAt(*viewport(), event));
  const bool left = event.button() == Qt::LeftButton;
  const bool right = event.button() == Qt::RightButton;
  const bool released = event.type() == QEvent::MouseButtonRelease;
  window_.EndLostTracks(released ? keys.buttons | event.button() : keys.buttons & ~event.button());
  if (event.type() == QEvent::MouseMove) {
    window_.MouseMoved(keys, point);
  } else if (released) {
    if (left) window_.EvLButtonUp(keys, point);
    if (right) window_.EvRButtonUp(keys, point);
  } else if (left && event.type() == QEvent::MouseButtonDblClick) {
    window_.EvLButtonDblClk(keys, point);
  } else if (left) {
    window_.EvLButtonDown(keys, point);
  } else if (right) {
    window_.EvRButtonDown(keys, point);
  }
  return true;
}

bool TMouseWnd::ClientView::WheelEvent(QWheelEvent& event) {
  if (!(event.modifiers() & Qt::ControlModifier)) return QAbstractScrollArea::viewportEvent(&event);
  event.accept();
  wheelAngle_ += event.angleDelta().y();
  const int steps = wheelAngle_ / QWheelEvent::DefaultDeltasPerStep;
  wheelAngle_ -= steps * QWheelEvent::DefaultDeltasPerStep;
  if (steps != 0) window_.ZoomAbout(DevicePixelAt(*viewport(), event), steps);
  return true;
}

void TMouseWnd::ClientView::PaintClient(const QRect& exposed) {
  QPainter painter(viewport());
  UseDevicePixels(painter);
  window_.Paint(painter, DevicePixels(*viewport(), exposed));
}

}  // namespace plenovia
