#include "images/ui/clipboard.h"

#include <QByteArray>
#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "codec/bmp.h"
#include "images/ui/picture_from_image.h"
#include "platform/ui/picture_painting.h"

namespace plenovia {

void CopyToClipboard(const IndexedImage& picture) {
  if (picture.empty()) return;
  QImage image = ToImage(picture);
  // Other programs see the palette in its size, unless pixels go beyond it.
  const auto pixels = picture.pixels();
  const int used = *std::max_element(pixels.begin(), pixels.end()) + 1;
  image.setColorCount(std::max(used, picture.palette().size()));
  CopyToClipboard(image);
}

void CopyToClipboard(const QImage& image) {
  if (!image.isNull()) QGuiApplication::clipboard()->setImage(image);
}

bool ClipboardHasPicture() {
  const QMimeData* data = QGuiApplication::clipboard()->mimeData();
  return data != nullptr && data->hasImage();
}

Result<IndexedImage> PictureFromClipboard() {
  if (!ClipboardHasPicture()) {
    return Failure(ErrorCode::kInvalid, "there is no picture on the clipboard");
  }
  const QMimeData& data = *QGuiApplication::clipboard()->mimeData();
  const QString bmp = QStringLiteral("image/bmp");
  if (data.hasFormat(bmp) && !data.hasFormat(QStringLiteral("image/png"))) {
    // Qt's reader would fill up a file that ends too early with whatever is in memory.
    const QByteArray bytes = data.data(bmp);
    return DecodeBmp({reinterpret_cast<const std::uint8_t*>(bytes.constData()),
                      static_cast<std::size_t>(bytes.size())});
  }
  const auto image = qvariant_cast<QImage>(data.imageData());
  if (image.isNull()) {
    return Failure(ErrorCode::kCorrupt, "the picture on the clipboard cannot be read");
  }
  return PictureFromImage(image);
}

}  // namespace plenovia
