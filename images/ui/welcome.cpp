#include "images/ui/welcome.h"

#include <QPainter>
#include <QThread>

#include "platform/ui/resource_pictures.h"

namespace plenovia {

namespace {

constexpr int kMillisecondsAUnit = 2000;
constexpr QSize kPictureSize(400, 260);
// Window managers are left out: some lose the frame when the picture before it goes at once.
constexpr Qt::WindowFlags kPopup =
    Qt::SplashScreen | Qt::FramelessWindowHint | Qt::X11BypassWindowManagerHint;

}  // namespace

TWelcome::TWelcome(const QString& title, const QString& picture, int units, const QRect& area)
    : QWidget(nullptr, kPopup),
      picture_(DrawnPicture(picture, kPictureSize, devicePixelRatioF())),
      delay_(units * kMillisecondsAUnit) {
  setObjectName(QStringLiteral("welcome"));
  setWindowTitle(title);
  const QSize size = kPictureSize;
  setGeometry(area.left() + area.width() / 2 - size.width() / 2,
              area.top() + area.height() / 2 - size.height() / 2, size.width() + 2,
              size.height() + 2);
}

void TWelcome::ShowNow() {
  show();
  repaint();
}

void TWelcome::CloseAfterDelay() {
  if (delay_ > 0) QThread::msleep(static_cast<unsigned long>(delay_));
  close();
}

void TWelcome::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.drawPixmap(1, 1, picture_);
  painter.setPen(palette().color(QPalette::Dark));
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

}  // namespace plenovia
