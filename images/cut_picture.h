// A part of a picture as a picture of its own.
#pragma once

#include "platform/indexed_image.h"
#include "platform/result.h"
#include "platform/shape_rows.h"

namespace plenovia {

// The pixels of `picture` within the rectangle between two corners, given in any order; the greater
// column and row are excluded. A rectangle without area means the whole picture. Fails when no
// pixel of the picture lies within.
[[nodiscard]] Result<IndexedImage> CutPicture(const IndexedImage& picture, const PixelRect& part);

}  // namespace plenovia
