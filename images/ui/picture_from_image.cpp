#include "images/ui/picture_from_image.h"

#include <QColor>
#include <algorithm>
#include <span>
#include <utility>
#include <vector>

#include "codec/composite_over_white.h"
#include "codec/reduce_rows.h"
#include "platform/limits.h"

namespace plenovia {

namespace {

Rgb ToRgb(QRgb colour) {
  const Rgb opaque{static_cast<std::uint8_t>(qRed(colour)),
                   static_cast<std::uint8_t>(qGreen(colour)),
                   static_cast<std::uint8_t>(qBlue(colour))};
  return CompositeOverWhite(opaque, qAlpha(colour));
}

Palette ColoursOf(const QImage& image) {
  if (image.format() == QImage::Format_Grayscale8) return Palette::Grays();
  std::vector<Rgb> colours;
  for (const QRgb colour : image.colorTable()) colours.push_back(ToRgb(colour));
  return Palette(colours);
}

Result<IndexedImage> CopyIndexes(const QImage& image) {
  auto picture = IndexedImage::Create(image.width(), image.height(), ColoursOf(image));
  for (int y = 0; picture && y < image.height(); ++y) {
    const auto row = picture->Row(y);
    std::copy_n(image.constScanLine(y), row.size(), row.begin());
  }
  return picture;
}

// Of 32 bits a pixel.
Result<IndexedImage> ReduceColours(const QImage& image) {
  return ReduceRows(image.width(), image.height(), [&](int y, std::span<Rgb> colours) {
    const auto* pixels = reinterpret_cast<const QRgb*>(image.constScanLine(y));
    const QRgb opaque = image.hasAlphaChannel() ? 0 : 0xFF000000;
    for (std::size_t x = 0; x < colours.size(); ++x) colours[x] = ToRgb(pixels[x] | opaque);
    return true;
  });
}

QImage::Format FormatToRead(const QImage& image) {
  switch (image.format()) {
    case QImage::Format_Mono:
    case QImage::Format_MonoLSB:
    case QImage::Format_Indexed8:
      return QImage::Format_Indexed8;
    case QImage::Format_Grayscale8:
    case QImage::Format_Grayscale16:
      return QImage::Format_Grayscale8;
    default:
      return image.hasAlphaChannel() ? QImage::Format_ARGB32 : QImage::Format_RGB32;
  }
}

}  // namespace

Result<IndexedImage> PictureFromImage(QImage image) {
  if (auto fits = CheckPictureSize(image.width(), image.height()); !fits) {
    return tl::unexpected(fits.error());
  }
  const QImage::Format format = FormatToRead(image);
  image = std::move(image).convertToFormat(format);
  if (image.isNull()) return Failure(ErrorCode::kTooLarge, "There is not enough memory.");
  return image.depth() == 8 ? CopyIndexes(image) : ReduceColours(image);
}

}  // namespace plenovia
