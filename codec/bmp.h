// BMP files.
#pragma once

#include <cstdint>
#include <span>

#include "codec/decoded_picture.h"
#include "codec/encoded_picture.h"
#include "platform/result.h"

namespace plenovia {

// Whether the bytes begin like a BMP file.
bool LooksLikeBmp(std::span<const std::uint8_t> bytes);

// Reads pictures of 1, 2, 4, 8, 16, 24 and 32 bits a pixel, plain, run-length encoded or with bit
// fields, under the headers of either system. Palettes keep their order and number of colours;
// other pictures are reduced to 256 colours; transparency is ignored. Pixels that run-length
// encoding leaves out are index 0. A file that ends early gives the rows that it has. Fails with
// kCorrupt, kUnsupported, kInvalid or kTooLarge.
[[nodiscard]] Result<DecodedPicture> DecodeBmp(std::span<const std::uint8_t> bytes);

// 8 bits a pixel, not compressed, with the picture's palette. The pieces are the picture's rows.
[[nodiscard]] Result<EncodedPicture> EncodeBmp(const IndexedImage& picture);

}  // namespace plenovia
