// A short number that tells pictures apart.
#pragma once

#include <cstdint>

#include "platform/indexed_image.h"

namespace plenovia {

// FNV-1a (Fowler, Noll, Vo; 64 bits) over the width and the height, 4 bytes each from the lowest
// on, the palette widened to 256 entries, and the pixels from the top left: a picture keeps it in
// any file that keeps its dots. It finds a picture again among some thousands; it is no proof
// against somebody who makes two pictures with the same number.
std::uint64_t PictureDigest(const IndexedImage& picture);

}  // namespace plenovia
