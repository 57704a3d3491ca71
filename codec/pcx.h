// PCX files.
#pragma once

#include <cstdint>
#include <span>

#include "codec/decoded_picture.h"
#include "codec/encoded_picture.h"
#include "platform/result.h"

namespace plenovia {

// Whether the bytes begin like a PCX file.
bool LooksLikePcx(std::span<const std::uint8_t> bytes);

// Reads versions 0, 2, 3, 4 and 5 with 1, 2, 4 or 8 bits a plane and 1 to 4 planes, run-length
// encoded or plain. Three or more planes of more than one bit are red, green and blue, reduced to
// 256 colours; all others are indexes, and keep them. A fourth plane of colours, and a second one
// of 8 bits, is transparency and ignored. A file that ends early gives the rows that it has. Fails
// with kCorrupt, kUnsupported, kInvalid or kTooLarge.
[[nodiscard]] Result<DecodedPicture> DecodePcx(std::span<const std::uint8_t> bytes);

// Version 5, one plane of 8 bits, run-length encoded, with 256 colours at the end: those of the
// picture's palette and then black.
[[nodiscard]] Result<EncodedPicture> EncodePcx(const IndexedImage& picture);

}  // namespace plenovia
