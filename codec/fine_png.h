// PNG files of 16 bits a pixel.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <utility>

#include "codec/encoded_picture.h"
#include "platform/fine_image.h"
#include "platform/result.h"

namespace plenovia {

// A picture of 16 bits a pixel, and what is wrong with its file.
struct DecodedFineImage {
  FineImage image;
  std::string damage;  // as in DecodedPicture; the pixels that could not be read are 0
};

// Whether the bytes begin like a gray PNG file of 16 bits, with an alpha channel or without.
bool LooksLikeFinePng(std::span<const std::uint8_t> bytes);

// Reads such a file; transparency is ignored. Fails as DecodePng() does.
[[nodiscard]] Result<DecodedFineImage> DecodeFinePng(std::span<const std::uint8_t> bytes);

[[nodiscard]] Result<EncodedPicture> EncodeFinePng(const FineImage& image);

}  // namespace plenovia
