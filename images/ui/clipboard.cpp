#include "images/ui/clipboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QImageReader>
#include <QMimeData>
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <utility>

#include "codec/graph_io.h"
#include "images/ui/picture_from_image.h"
#include "platform/ui/picture_painting.h"

namespace plenovia {

namespace {

constexpr char kBmp[] = "image/bmp";
constexpr char kPng[] = "image/png";

// Whether another program has to be asked for what is on the clipboard. Elsewhere than on X the
// formats come with the news that it changed.
bool MustBeAsked() {
  return XSelectionRequest::IsXDisplay() && !QGuiApplication::clipboard()->ownsClipboard();
}

// The one of these formats in which a picture is best read; empty when none can be.
QByteArray BestFormat(const QList<QByteArray>& offered) {
  for (const QByteArray& format :
       QList<QByteArray>{kPng, kBmp} + QImageReader::supportedMimeTypes()) {
    if (offered.contains(format)) return format;
  }
  return {};
}

tl::unexpected<Error> NoAnswer() {
  return Failure(ErrorCode::kIo, "The program that owns the clipboard does not answer.");
}

Result<IndexedImage> PictureFrom(const QImage& image) {
  if (image.isNull()) {
    return Failure(ErrorCode::kCorrupt, "The picture on the clipboard cannot be read.");
  }
  return PictureFromImage(image);
}

Result<IndexedImage> PictureFrom(const QByteArray& format, const QByteArray& bytes) {
  if (format != kBmp) return PictureFrom(QImage::fromData(bytes));
  // Qt's reader would fill up a file that ends too early with what is left in memory.
  return DecodePicture({reinterpret_cast<const std::uint8_t*>(bytes.constData()),
                        static_cast<std::size_t>(bytes.size())});
}

Result<IndexedImage> PictureFrom(const QMimeData& data) {
  const auto bmp = QString::fromLatin1(kBmp);
  if (data.hasFormat(bmp) && !data.hasFormat(QString::fromLatin1(kPng))) {
    return PictureFrom(kBmp, data.data(bmp));
  }
  return PictureFrom(qvariant_cast<QImage>(data.imageData()));
}

}  // namespace

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

ClipboardPictures::ClipboardPictures(QObject* parent) : QObject(parent) {
  connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, this, &ClipboardPictures::Look);
  Look();
}

void ClipboardPictures::Look() {
  formatsRequest_.reset();
  offered_.clear();
  if (!MustBeAsked()) {
    const QMimeData* data = QGuiApplication::clipboard()->mimeData();
    for (const QString& format : data != nullptr ? data->formats() : QStringList()) {
      offered_ << format.toLatin1();
    }
    SetHasPicture(data != nullptr && data->hasImage());
    return;
  }
  SetHasPicture(false);
  formatsRequest_ = std::make_unique<XSelectionRequest>(
      "TARGETS", std::chrono::milliseconds(0), [this](const std::optional<QByteArray>& targets) {
        formatsRequest_.reset();
        if (targets) offered_ = XSelectionRequest::FormatNames(*targets);
        format_ = BestFormat(offered_);
        SetHasPicture(!format_.isEmpty());
      });
}

void ClipboardPictures::SetHasPicture(bool has) {
  hasPicture_ = has;
  Q_EMIT Changed();
}

void ClipboardPictures::ReadPicture(Take take, std::chrono::milliseconds patience) {
  if (formatsRequest_) return take(NoAnswer());
  if (!hasPicture_) {
    return take(Failure(ErrorCode::kInvalid, "There is no picture on the clipboard."));
  }
  if (!MustBeAsked()) return take(PictureFrom(*QGuiApplication::clipboard()->mimeData()));
  pictureRequest_ = std::make_unique<XSelectionRequest>(
      format_, patience,
      [this, format = format_, take = std::move(take)](const std::optional<QByteArray>& bytes) {
        pictureRequest_.reset();
        take(bytes ? PictureFrom(format, *bytes) : NoAnswer());
      });
}

QByteArray ClipboardPictures::FirstOffered(const QList<QByteArray>& formats) const {
  for (const QByteArray& format : formats) {
    if (offered_.contains(format)) return format;
  }
  return {};
}

void ClipboardPictures::ReadBytes(const QByteArray& format, TakeBytes take,
                                  std::chrono::milliseconds patience) {
  if (!MustBeAsked()) {
    const QMimeData* data = QGuiApplication::clipboard()->mimeData();
    return take(data != nullptr ? std::optional(data->data(QString::fromLatin1(format)))
                                : std::nullopt);
  }
  bytesRequest_ = std::make_unique<XSelectionRequest>(
      format, patience, [this, take = std::move(take)](std::optional<QByteArray> bytes) {
        bytesRequest_.reset();
        take(std::move(bytes));
      });
}

}  // namespace plenovia
