#include "platform/ui/resource_pictures.h"

#include <QFile>
#include <QPainter>
#include <QPixmap>
#include <QPixmapCache>
#include <QPoint>
#include <QResource>
#include <QSvgRenderer>

namespace plenovia {

namespace {

constexpr int kCursorSide = 32;

// On the grid of the drawings.
QPoint HotSpot(int id) {
  switch (id) {
    case 1250:
    case 1255:
      return {16, 16};
    case 1251:
      return {8, 2};
    case 1253:
      return {2, 22};
    case 1254:
      return {16, 24};
    default:
      return {8, 8};
  }
}

// The picture of this size that the build has made of the drawing (resources/draw_pictures.cpp), or
// a null image.
QImage DrawnAhead(QStringView file, const QSize& size) {
  const QResource rows(
      QStringLiteral(":/drawn%1@%2x%3").arg(file.mid(1)).arg(size.width()).arg(size.height()));
  if (rows.size() != qint64{4} * size.width() * size.height()) return {};
  return {rows.data(), size.width(), size.height(), QImage::Format_ARGB32_Premultiplied};
}

}  // namespace

QPixmap DrawnPicture(const QString& file, const QSize& size, qreal scaleFactor) {
  if (!QFile::exists(file)) return {};
  const QSize pixels = size * scaleFactor;
  QPixmap picture = QPixmap::fromImage(DrawnAhead(file, pixels));
  if (picture.isNull()) {
    picture = QPixmap(pixels);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    QSvgRenderer(file).render(&painter);
  }
  picture.setDevicePixelRatio(scaleFactor);
  return picture;
}

QString ButtonPictureFile(int command) {
  return QStringLiteral(":/buttons/%1.svg").arg(command);
}

QIcon ButtonPicture(int command) {
  const QString file = ButtonPictureFile(command);
  return QFile::exists(file) ? QIcon(file) : QIcon();
}

QIcon NamedIcon(const QString& name) {
  const QString file = QStringLiteral(":/icons/%1.svg").arg(name);
  return QFile::exists(file) ? QIcon(file) : QIcon();
}

QCursor CursorById(int id, qreal scaleFactor) {
  const QString file = QStringLiteral(":/cursors/%1.svg").arg(id);
  if (!QFile::exists(file)) return QCursor(Qt::ArrowCursor);
  const QString key = QStringLiteral("cursor %1 %2").arg(id).arg(scaleFactor);
  QPixmap picture;
  if (!QPixmapCache::find(key, &picture)) {
    picture = DrawnPicture(file, QSize(kCursorSide, kCursorSide), scaleFactor);
    QPixmapCache::insert(key, picture);
  }
  const QPoint hot = HotSpot(id);
  return QCursor(picture, hot.x(), hot.y());
}

void ShowBusyCursor(QWidget& window, bool busy) {
  window.setCursor(CursorById(busy ? kBusyCursor : kNormalCursor, window.devicePixelRatioF()));
}

}  // namespace plenovia
