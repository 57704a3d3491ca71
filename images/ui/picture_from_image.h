// Images of Qt's as pictures with a palette.
#pragma once

#include <QImage>

#include "platform/indexed_image.h"
#include "platform/result.h"

namespace plenovia {

// An image with a palette keeps its indexes and its colours in their order; a gray one gets 256
// grays with index = gray; true colour is reduced to 256 colours (ColourReducer). Transparent
// colours are composited over white. Fails with kInvalid for a null image and with kTooLarge.
[[nodiscard]] Result<IndexedImage> PictureFromImage(QImage image);

}  // namespace plenovia
