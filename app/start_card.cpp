#include "app/start_card.h"

#include <QKeyEvent>
#include <QPainter>

namespace plenovia {

namespace {

constexpr int kMargin = 8;
constexpr int kCorner = 6;

}  // namespace

StartCard::StartCard(const QString& name, const QSize& picture, QWidget* parent)
    : QAbstractButton(parent), room_(picture) {
  setText(name);
  setAttribute(Qt::WA_Hover);
  setFocusPolicy(Qt::StrongFocus);
  setCursor(Qt::PointingHandCursor);
}

void StartCard::SetPicture(const QImage& picture) {
  picture_ = picture;
  update();
}

QSize StartCard::sizeHint() const {
  return room_ + QSize(2 * kMargin, 3 * kMargin + fontMetrics().height());
}

void StartCard::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const bool marked = hasFocus() || underMouse();
  const qreal line = hasFocus() ? 2 : 1;
  const QPalette colours = palette();
  painter.setPen(QPen(colours.color(marked ? QPalette::Highlight : QPalette::Mid), line));
  painter.setBrush(colours.color(isDown() ? QPalette::Midlight : QPalette::Base));
  const qreal inset = line / 2;
  painter.drawRoundedRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset), kCorner, kCorner);

  const QRect room(QPoint(kMargin, kMargin), room_);
  const qreal scale = devicePixelRatioF();
  QRectF picture(QPointF(), QSizeF(picture_.size()) / scale);
  picture.moveCenter(QRectF(room).center());
  picture.moveTopLeft((picture.topLeft() * scale).toPoint() / scale);
  painter.drawImage(picture, picture_);

  painter.setPen(colours.color(QPalette::Text));
  const QRect nameRoom(kMargin, 2 * kMargin + room_.height(), room_.width(),
                       fontMetrics().height());
  painter.drawText(nameRoom, Qt::AlignCenter,
                   fontMetrics().elidedText(text(), Qt::ElideMiddle, nameRoom.width()));
}

void StartCard::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    click();
  } else {
    QAbstractButton::keyPressEvent(event);
  }
}

}  // namespace plenovia
