#include "platform/ui/shown_picture.h"

#include "platform/ui/picture_painting.h"

namespace plenovia {

QRect ShownPicture::Paint(QPainter& painter, const std::shared_ptr<const IndexedImage>& picture,
                          double zoom, const QPoint& corner, const QRect& view,
                          const QRect& exposed) {
  const QRect area = ZoomedPlace(*picture, zoom, corner) & view;
  if (picture_.lock() != picture || zoom_ != zoom || corner_ != corner || area_ != area) {
    ready_ = ZoomedPart(*picture, zoom, area.translated(-corner));
    picture_ = picture;
    zoom_ = zoom;
    corner_ = corner;
    area_ = area;
  }
  const QRect part = area & exposed;
  if (!part.isEmpty()) painter.drawImage(part.topLeft(), ready_, part.translated(-area.topLeft()));
  return part;
}

}  // namespace plenovia
