// PNG files.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "codec/decoded_picture.h"
#include "codec/encoded_picture.h"
#include "platform/result.h"

namespace plenovia {

// Whether the bytes begin like a PNG file.
bool LooksLikePng(std::span<const std::uint8_t> bytes);

// Reads every colour type and depth, interlaced or not. A picture with a palette keeps its indexes
// and colours; their transparency is ignored. A gray picture gets 256 grays with index = gray, of
// fewer bits scaled up, of 16 bits the high byte. True colour is reduced to 256 colours
// (ColourReducer). Transparent grays and true colours are composited over white. A file that ends
// early or is damaged among its pixels gives those that come before; a wrong checksum is told, and
// what it covers is taken. Fails with kCorrupt, kUnsupported, kInvalid or kTooLarge (also for a
// small file that expands to gigabytes).
[[nodiscard]] Result<DecodedPicture> DecodePng(std::span<const std::uint8_t> bytes);

// 8 bits a pixel with the picture's palette, widened with black where pixels go beyond it. A
// comment (plain ASCII) goes into a text chunk "Comment".
[[nodiscard]] Result<EncodedPicture> EncodePng(const IndexedImage& picture,
                                               std::string_view comment = {});

// The library that does it, with its version.
std::string_view PngLibrary();

}  // namespace plenovia
