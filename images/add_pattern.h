// New patterns, cut out of pictures.
#pragma once

#include <filesystem>

#include "images/sird_patt.h"
#include "platform/indexed_image.h"
#include "platform/result.h"

namespace plenovia {

// The top left corner of the picture, 100 x 100 pixels, with its palette. A smaller picture is
// repeated to fill it; an empty one is an error.
[[nodiscard]] Result<IndexedImage> CutPattern(const IndexedImage& picture);

// Saves the picture's corner as a GIF file under the first number that is free both in the
// library's folder and in `userFolder`, and appends it to the library. The file goes to the
// library's folder, or, where that cannot be written, to `userFolder`, which is made when it is not
// there. On failure the library is unchanged and no file is left.
[[nodiscard]] Result<void> AddPattern(TSirdPatt& library, const IndexedImage& picture,
                                      const std::filesystem::path& userFolder);

}  // namespace plenovia
