#include "platform/ui/picture_painting.h"

#include <QList>
#include <QPixmap>
#include <QtMath>
#include <algorithm>
#include <cstring>

#include "platform/zoomed_picture.h"

namespace plenovia {

void UseDevicePixels(QPainter& painter) {
  const QPointF origin = painter.deviceTransform().map(QPointF());
  const qreal scale = painter.deviceTransform().m11();
  const QPointF whole(qRound(origin.x()), qRound(origin.y()));
  painter.translate((whole - origin) / scale);
  painter.scale(1 / scale, 1 / scale);
  painter.setRenderHint(QPainter::SmoothPixmapTransform, false);
}

QSize DevicePixels(const QWidget& widget) {
  const QSizeF exact = QSizeF(widget.size()) * widget.devicePixelRatioF();
  return {qFloor(exact.width()), qFloor(exact.height())};
}

QRect DevicePixels(const QWidget& widget, const QRect& area) {
  const qreal scale = widget.devicePixelRatioF();
  return QRectF(QPointF(area.topLeft()) * scale, QSizeF(area.size()) * scale).toAlignedRect();
}

QPoint DevicePixelAt(const QWidget& widget, const QSinglePointEvent& event) {
  constexpr qreal kRoundingError = 1e-3;
  const QPoint corner = widget.mapTo(widget.window(), QPoint());
  // The place in the widget is rounded to Qt's units when the event came through the window, whose
  // place is not. An event that was made for the widget has no other place.
  QPointF place = event.position() + corner;
  const QPointF exact = event.scenePosition();
  if ((exact - place).manhattanLength() <= 1) place = exact;
  const qreal scale = widget.devicePixelRatioF();
  return {qFloor(place.x() * scale + kRoundingError) - qRound(corner.x() * scale),
          qFloor(place.y() * scale + kRoundingError) - qRound(corner.y() * scale)};
}

QRect ZoomedPlace(const IndexedImage& picture, double zoom, const QPoint& corner) {
  return {corner, QSize(ZoomedSide(picture.width(), zoom), ZoomedSide(picture.height(), zoom))};
}

QImage ZoomedPart(const IndexedImage& picture, double zoom, const QRect& part) {
  QImage shown(part.size(), QImage::Format_RGB32);
  if (shown.isNull()) return shown;
  RenderZoomed(picture, zoom, {part.left(), part.top(), part.right() + 1, part.bottom() + 1},
               {reinterpret_cast<std::uint32_t*>(shown.bits()),
                static_cast<std::size_t>(shown.sizeInBytes()) / sizeof(std::uint32_t)});
  return shown;
}

void PaintPicture(QPainter& painter, const IndexedImage& picture, double zoom, QPoint corner,
                  const QRect& exposed) {
  const QRect part = ZoomedPlace(picture, zoom, corner) & exposed;
  if (part.isEmpty()) return;
  painter.drawImage(part.topLeft(), ZoomedPart(picture, zoom, part.translated(-corner)));
}

QImage ToImage(const IndexedImage& picture) {
  QImage image(picture.width(), picture.height(), QImage::Format_Indexed8);
  if (image.isNull()) return image;
  QList<QRgb> colours;
  for (int i = 0; i < 256; ++i) {
    const Rgb colour = picture.palette()[i];
    colours << qRgb(colour.red, colour.green, colour.blue);
  }
  image.setColorTable(colours);
  for (int y = 0; y < picture.height(); ++y) {
    const auto row = picture.Row(y);
    std::memcpy(image.scanLine(y), row.data(), row.size());
  }
  return image;
}

QPixmap ToPixmap(const IndexedImage& picture, qreal scaleFactor) {
  QPixmap pixmap = QPixmap::fromImage(ToImage(picture));
  pixmap.setDevicePixelRatio(scaleFactor);
  return pixmap;
}

}  // namespace plenovia
