// JPEG files.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "codec/decoded_picture.h"
#include "codec/encoded_picture.h"
#include "platform/result.h"

namespace plenovia {

// Whether the bytes begin like a JPEG file.
bool LooksLikeJpeg(std::span<const std::uint8_t> bytes);

// Reads baseline and progressive files: a gray picture gets 256 grays, index = gray; colours are
// reduced to 256 (ColourReducer), inks (CMYK) turned into colours first. A file that ends early,
// lacks a part of the picture or is damaged gives what can be read, with gray for the rest. A
// progressive file whose coefficients and picture need more than 768 MiB, or that has very many
// scans, is kTooLarge. At most `threads` work on it, or one a processor when that is 0.
[[nodiscard]] Result<DecodedPicture> DecodeJpeg(std::span<const std::uint8_t> bytes,
                                                int threads = 0);

// Baseline, quality 95, colours at full resolution; a gray file when all the palette is gray. A
// comment is at most 65533 bytes long.
[[nodiscard]] Result<EncodedPicture> EncodeJpeg(const IndexedImage& picture,
                                                std::string_view comment = {});

// The library that does it, with its version.
std::string_view JpegLibrary();

}  // namespace plenovia
