// Pictures to and from other programs through the clipboard.
#pragma once

#include <QImage>

#include "platform/indexed_image.h"
#include "platform/result.h"

namespace plenovia {

// Offers the picture as PNG, BMP and in the other formats that Qt writes, in place of what was on
// the clipboard. An empty picture changes nothing.
void CopyToClipboard(const IndexedImage& picture);
void CopyToClipboard(const QImage& image);

// Whether there is something that may be read as a picture.
bool ClipboardHasPicture();

// The picture on the clipboard, as PictureFromImage() makes it. Fails when there is none, when its
// bytes are no picture, and when it is too large.
[[nodiscard]] Result<IndexedImage> PictureFromClipboard();

}  // namespace plenovia
