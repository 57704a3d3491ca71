#include "app/bar_button.h"

#include <QEvent>
#include <QImage>
#include <QStyleOptionToolButton>
#include <QStylePainter>

#include "platform/ui/picture_painting.h"
#include "platform/ui/resource_pictures.h"

namespace plenovia {

namespace {

constexpr int kBorder = 2;
constexpr int kNumberHeight = 9;
constexpr qreal kGrayedOpacity = 0.35;
constexpr float kPressedOpacity = 0.35F;

// Of the same size in pixels. The scale factor of the face is left out.
QImage WithoutColour(const QPixmap& face) {
  QImage coloured = face.toImage().convertToFormat(QImage::Format_ARGB32);
  coloured.setDevicePixelRatio(1);
  QImage gray = coloured.convertToFormat(QImage::Format_Grayscale8);
  gray = gray.convertToFormat(QImage::Format_ARGB32);
  gray.setAlphaChannel(coloured.convertToFormat(QImage::Format_Alpha8));
  return gray;
}

}  // namespace

BarButton::BarButton(QAction* action, int pictureSize, QWidget* bar)
    : QToolButton(bar), command_(action->data().toInt()), pictureSize_(pictureSize) {
  setObjectName(QStringLiteral("button%1").arg(command_));
  setDefaultAction(action);
  setAutoRaise(true);
  setFocusPolicy(Qt::NoFocus);
  setMouseTracking(true);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void BarButton::SetFace(const QPixmap& face) {
  face_ = face;
  update();
}

QSize BarButton::sizeHint() const {
  const int side = pictureSize_ + 2 * kBorder;
  return {side, side};
}

bool BarButton::event(QEvent* event) {
  if (event->type() == QEvent::ToolTip) return true;
  const bool handled = QToolButton::event(event);
  switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
      event->ignore();
      break;
    default:
      break;
  }
  return handled;
}

QPixmap BarButton::Picture() {
  if (picture_.isNull() || picture_.devicePixelRatioF() != devicePixelRatioF()) {
    picture_ = DrawnPicture(ButtonPictureFile(command_), QSize(pictureSize_, pictureSize_),
                            devicePixelRatioF());
  }
  return picture_;
}

void BarButton::paintEvent(QPaintEvent*) {
  QStyleOptionToolButton option;
  initStyleOption(&option);
  option.icon = QIcon();
  option.text.clear();
  QStylePainter painter(this);
  painter.drawComplexControl(QStyle::CC_ToolButton, option);
  if (isChecked() && isEnabled()) {
    QColor pressed = palette().color(QPalette::Highlight);
    pressed.setAlphaF(kPressedOpacity);
    painter.fillRect(rect().adjusted(1, 1, -1, -1), pressed);
  }

  const QPixmap face = face_.isNull() ? Picture() : face_;
  if (face.isNull()) {
    QFont small = font();
    small.setPixelSize(kNumberHeight);
    painter.setFont(small);
    painter.drawItemText(rect(), Qt::AlignCenter, palette(), isEnabled(), QString::number(command_),
                         QPalette::ButtonText);
    return;
  }
  UseDevicePixels(painter);
  const QSize margin = (DevicePixels(*this) - face.size()) / 2;
  const QRect place(QPoint(margin.width(), margin.height()), face.size());
  if (isEnabled()) {
    painter.drawPixmap(place, face, face.rect());
  } else {
    painter.setOpacity(kGrayedOpacity);
    painter.drawImage(place, WithoutColour(face));
  }
}

}  // namespace plenovia
