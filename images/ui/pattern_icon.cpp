#include "images/ui/pattern_icon.h"

#include <QPainter>
#include <QPixmap>

#include "platform/ui/picture_painting.h"

namespace plenovia {

namespace {

constexpr int kFrame = 3;

}  // namespace

QIcon PatternIcon(const IndexedImage& pattern, int side, qreal scaleFactor,
                  const QColor& highlight) {
  const int pixels = qRound(side * scaleFactor);
  QPixmap face(pixels, pixels);
  QPainter painter(&face);
  for (int y = 0; y < pixels; y += pattern.height()) {
    for (int x = 0; x < pixels; x += pattern.width()) {
      PaintPicture(painter, pattern, 1.0, {x, y},
                   QRect(x, y, pattern.width(), pattern.height()) & face.rect());
    }
  }
  painter.end();
  QPixmap chosen = face;
  QPainter frame(&chosen);
  frame.setPen(highlight);
  for (int i = 0; i < qRound(kFrame * scaleFactor); ++i) {
    frame.drawRect(chosen.rect().adjusted(i, i, -i - 1, -i - 1));
  }
  frame.end();
  face.setDevicePixelRatio(scaleFactor);
  chosen.setDevicePixelRatio(scaleFactor);
  QIcon icon(face);
  icon.addPixmap(chosen, QIcon::Selected);
  return icon;
}

}  // namespace plenovia
