// New patterns, cut out of pictures.
#pragma once

#include "images/sird_patt.h"
#include "platform/indexed_image.h"
#include "platform/result.h"

namespace plenovia {

// The top left corner of the picture, 100 x 100 pixels, with its palette. A smaller picture is
// repeated to fill it; an empty one is an error.
[[nodiscard]] Result<IndexedImage> CutPattern(const IndexedImage& picture);

// Saves the picture's corner as a GIF file under the number after the highest (of the shipped ones,
// and of all files that lie in the library's folders), and appends it to the library. The file goes
// to the program's folder, or, where that takes none or cannot be written, to the user's, which is
// made when it is not there. On failure the library is unchanged and no file is left.
[[nodiscard]] Result<void> AddPattern(TSirdPatt& library, const IndexedImage& picture);

}  // namespace plenovia
