// Pictures on the screen: dots stay dots.
#pragma once

#include <QImage>
#include <QPainter>
#include <QPoint>
#include <QPointerEvent>
#include <QRect>
#include <QWidget>

#include "platform/indexed_image.h"
#include "platform/result.h"

namespace plenovia {

// Has the painter of a widget count in the display's own pixels from the widget's top left corner,
// at each scale factor of the display.
void UseDevicePixels(QPainter& painter);
// The widget's area in the display's pixels.
QSize DevicePixels(const QWidget& widget);
QRect DevicePixels(const QWidget& widget, const QRect& area);
// The pixel under the mouse, counted from where painting in the widget begins.
QPoint DevicePixelAt(const QWidget& widget, const QSinglePointEvent& event);

// Where the picture at `zoom` is when its corner is at `corner`.
QRect ZoomedPlace(const IndexedImage& picture, double zoom, const QPoint& corner);
// The part `part` of the picture at `zoom`; null when there is no memory for it.
QImage ZoomedPart(const IndexedImage& picture, double zoom, const QRect& part);

// Paints what of the picture at `zoom`, with its corner at `corner`, lies in `exposed`. The painter
// counts in the display's pixels.
void PaintPicture(QPainter& painter, const IndexedImage& picture, double zoom, QPoint corner,
                  const QRect& exposed);

// A copy as an image of Qt's, with the same indexes and colours.
QImage ToImage(const IndexedImage& picture);
// The picture in its own size, one pixel of it a pixel.
QPixmap ToPixmap(const IndexedImage& picture, qreal scaleFactor);

}  // namespace plenovia
