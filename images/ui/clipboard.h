// Pictures, and what documents take into themselves, to and from other programs through the
// clipboard.
#pragma once

#include <QByteArray>
#include <QImage>
#include <QList>
#include <QObject>
#include <chrono>
#include <functional>
#include <memory>
#include <optional>

#include "platform/indexed_image.h"
#include "platform/result.h"
#include "platform/ui/x_selection_request.h"

namespace plenovia {

// Offers the picture as PNG, BMP and in the other formats that Qt writes, in place of what was on
// the clipboard. An empty picture changes nothing.
void CopyToClipboard(const IndexedImage& picture);
void CopyToClipboard(const QImage& image);

// What is on the clipboard. Looks when the clipboard changes, not when it is asked, and never waits
// for the program that owns it.
class ClipboardPictures : public QObject {
  Q_OBJECT

 public:
  using Take = std::function<void(Result<IndexedImage>)>;
  static constexpr std::chrono::seconds kPatience{5};

  explicit ClipboardPictures(QObject* parent = nullptr);

  // Whether there is something that may be read as a picture, as far as is known.
  bool HasPicture() const { return hasPicture_; }
  // Hands over the picture, as PictureFromImage() makes it, at once or when its owner has sent it;
  // an error when there is none, when its bytes are no picture, when it is too large, and when the
  // owner is silent for `patience`. A later call takes the place of one that still waits.
  void ReadPicture(Take take, std::chrono::milliseconds patience = kPatience);

  // The first of these formats in which the contents are offered, as far as is known; else empty.
  QByteArray FirstOffered(const QList<QByteArray>& formats) const;
  // The bytes of that format in the same way.
  using TakeBytes = std::function<void(std::optional<QByteArray>)>;
  void ReadBytes(const QByteArray& format, TakeBytes take,
                 std::chrono::milliseconds patience = kPatience);

 Q_SIGNALS:
  // HasPicture() may have changed.
  void Changed();

 private:
  void Look();
  void SetHasPicture(bool has);

  bool hasPicture_ = false;
  QList<QByteArray> offered_;
  QByteArray format_;  // in which another program is asked for its picture
  std::unique_ptr<XSelectionRequest> formatsRequest_;
  std::unique_ptr<XSelectionRequest> pictureRequest_;
  std::unique_ptr<XSelectionRequest> bytesRequest_;
};

}  // namespace plenovia
