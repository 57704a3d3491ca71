// A picture in a window, ready to be painted again and again.
#pragma once

#include <QImage>
#include <QPainter>
#include <QPoint>
#include <QRect>
#include <memory>

#include "platform/indexed_image.h"

namespace plenovia {

// Keeps what of a picture is in view in the format of the display, so that repainting only copies.
class ShownPicture {
 public:
  // Paints what of the picture at `zoom`, with its corner at `corner`, lies in `exposed`; `view` is
  // all that can be seen. Gives back what of `exposed` is covered. The painter counts in the
  // display's pixels.
  QRect Paint(QPainter& painter, const std::shared_ptr<const IndexedImage>& picture, double zoom,
              const QPoint& corner, const QRect& view, const QRect& exposed);

 private:
  std::weak_ptr<const IndexedImage> picture_;
  double zoom_ = 0;
  QPoint corner_;
  QRect area_;
  QImage ready_;
};

}  // namespace plenovia
