#include "app/pattern_face.h"

#include <QPainter>

#include "platform/ui/picture_painting.h"

namespace plenovia {

namespace {

constexpr int kBorder = 2;

}  // namespace

QPixmap PatternFace(const IndexedImage& pattern, QSize size, qreal scaleFactor,
                    const QColor& buttonFace) {
  QPixmap face(size * scaleFactor);
  face.fill(buttonFace);
  const int border = qRound(kBorder * scaleFactor);
  const QRect inner = face.rect().adjusted(border, border, -border, -border);
  QPainter painter(&face);
  const QRect shown = inner & QRect(inner.topLeft(), QSize(pattern.width(), pattern.height()));
  PaintPicture(painter, pattern, 1.0, inner.topLeft(), shown);
  painter.end();
  face.setDevicePixelRatio(scaleFactor);
  return face;
}

}  // namespace plenovia
