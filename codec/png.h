// PNG files.
#pragma once

#include <cstdint>
#include <span>

#include "codec/encoded_picture.h"
#include "platform/indexed_image.h"
#include "platform/result.h"

namespace plenovia {

// Whether the bytes begin like a PNG file.
bool LooksLikePng(std::span<const std::uint8_t> bytes);

// Reads every colour type and depth, interlaced or not. A picture with a palette keeps its indexes
// and colours; their transparency is ignored. A gray picture gets 256 grays with index = gray, of
// fewer bits scaled up, of 16 bits the high byte. True colour is reduced to 256 colours
// (ColourReducer). Transparency of gray and true colour is seen before white. Fails with kCorrupt
// (also for a wrong checksum), kUnsupported, kInvalid or kTooLarge (also for a small file that
// expands to gigabytes).
[[nodiscard]] Result<IndexedImage> DecodePng(std::span<const std::uint8_t> bytes);

// 8 bits a pixel with the picture's palette, widened with black where pixels go beyond it.
[[nodiscard]] Result<EncodedPicture> EncodePng(const IndexedImage& picture);

}  // namespace plenovia
