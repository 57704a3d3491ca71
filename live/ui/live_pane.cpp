#include "live/ui/live_pane.h"

#include <QMouseEvent>
#include <QPainter>
#include <QTimerEvent>
#include <QWheelEvent>
#include <algorithm>

#include "platform/ui/picture_painting.h"

namespace plenovia {

namespace {

constexpr int kTurnMilliseconds = 160;  // each view of the wiggle
constexpr double kNotch = 120;
constexpr QRgb kAround = qRgb(44, 48, 56);

QImage Over(const RgbPicture& picture) {
  if (picture.pixels.empty()) return {};
  return {reinterpret_cast<const uchar*>(picture.pixels.data()), picture.width, picture.height,
          picture.width * 4, QImage::Format_RGB32};
}

}  // namespace

LivePane::LivePane(QWidget* parent) : QWidget(parent) {
  setObjectName(QStringLiteral("livePane"));
  setAccessibleName(tr("Live picture"));
  setFocusPolicy(Qt::StrongFocus);
  setAttribute(Qt::WA_OpaquePaintEvent);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void LivePane::Show(const std::shared_ptr<const LivePicture>& picture) {
  picture_ = picture;
  first_ = picture ? Over(picture->colours) : QImage();
  second_ = picture ? Over(picture->second) : QImage();
  Scroll({});
  UpdateCursor();
  UpdateTurns();
  update();
}

QSize LivePane::PictureSize() const {
  if (!picture_) return {};
  if (picture_->stereogram) return {picture_->stereogram->width(), picture_->stereogram->height()};
  return first_.size();
}

QPoint LivePane::Corner() const {
  const QSize room = DevicePixels(*this) - PictureSize();
  return {room.width() >= 0 ? room.width() / 2 : -scroll_.x(),
          room.height() >= 0 ? room.height() / 2 : -scroll_.y()};
}

bool LivePane::ShowsDots() const {
  return picture_ && picture_->view != LiveView::kRelief;
}

void LivePane::Scroll(const QPoint& way) {
  const QSize over = (PictureSize() - DevicePixels(*this)).expandedTo({0, 0});
  scroll_ = {std::clamp(scroll_.x() + way.x(), 0, over.width()),
             std::clamp(scroll_.y() + way.y(), 0, over.height())};
  update();
}

void LivePane::UpdateCursor() {
  const QSize size = PictureSize();
  const QSize room = DevicePixels(*this);
  const bool larger = size.width() > room.width() || size.height() > room.height();
  const bool moves = showsFigure_ || larger || (picture_ && picture_->view == LiveView::kRelief);
  setCursor(moves ? Qt::OpenHandCursor : Qt::ArrowCursor);
}

void LivePane::UpdateTurns() {
  const bool needed = !second_.isNull() && isVisible();
  if (needed && !turns_.isActive()) turns_.start(kTurnMilliseconds, this);
  if (!needed) {
    turns_.stop();
    showsSecond_ = false;
  }
}

QImage LivePane::Shown() const {
  if (picture_ && picture_->stereogram) return ToImage(*picture_->stereogram);
  return first_.copy();
}

void LivePane::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  UseDevicePixels(painter);
  const QRect all(QPoint(), DevicePixels(*this));
  const QRect exposed = DevicePixels(*this, event->rect()) & all;
  painter.fillRect(exposed, QColor(kAround));
  const QPoint corner = Corner();
  if (!picture_) return;
  if (picture_->stereogram) {
    shown_.Paint(painter, picture_->stereogram, 1.0, corner, all, exposed);
  } else if (!first_.isNull()) {
    painter.drawImage(corner, showsSecond_ ? second_ : first_);
  } else if (!picture_->problem.isEmpty()) {
    painter.resetTransform();
    painter.setPen(Qt::white);
    painter.drawText(rect().adjusted(16, 16, -16, -16), Qt::AlignCenter | Qt::TextWordWrap,
                     picture_->problem);
  }
  Q_EMIT Painted();
}

void LivePane::resizeEvent(QResizeEvent*) {
  Scroll({});
  Q_EMIT Resized(DevicePixels(*this));
}

void LivePane::mousePressEvent(QMouseEvent* event) {
  last_ = event->pos();
  if (cursor().shape() == Qt::OpenHandCursor) setCursor(Qt::ClosedHandCursor);
}

void LivePane::mouseMoveEvent(QMouseEvent* event) {
  const QPoint way = (QPointF(event->pos() - last_) * devicePixelRatioF()).toPoint();
  if (!picture_ || way.isNull()) return;
  last_ = event->pos();
  if (event->buttons() == Qt::RightButton) {
    Scroll(-way);
  } else if (event->buttons() == Qt::LeftButton) {
    if (!ShowsDots()) {
      Q_EMIT ReliefTurned(way);
    } else if (showsFigure_) {
      Q_EMIT FigureMoved(way);
    } else {
      Scroll(-way);
    }
  }
}

void LivePane::mouseReleaseEvent(QMouseEvent*) {
  UpdateCursor();
}

void LivePane::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || !picture_) return;
  if (!ShowsDots()) {
    Q_EMIT ReliefReset();
  } else if (showsFigure_) {
    Q_EMIT FigureReset();
  }
}

void LivePane::wheelEvent(QWheelEvent* event) {
  // Shift turns the wheel's axis on some systems.
  const QPoint angle = event->angleDelta();
  const double notches = (angle.y() != 0 ? angle.y() : angle.x()) / kNotch;
  event->accept();
  if (event->modifiers() & Qt::ShiftModifier && showsFigure_) {
    Q_EMIT FigureTurned(notches);
  } else if (!ShowsDots()) {
    Q_EMIT ReliefZoomed(notches);
  } else {
    Scroll(-angle / 2);
  }
}

void LivePane::timerEvent(QTimerEvent* event) {
  if (event->timerId() != turns_.timerId()) return QWidget::timerEvent(event);
  showsSecond_ = !showsSecond_;
  update();
}

void LivePane::hideEvent(QHideEvent*) {
  UpdateTurns();
}

void LivePane::showEvent(QShowEvent*) {
  UpdateTurns();
}

}  // namespace plenovia
