// Depth pictures of more than 256 levels.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "codec/fine_png.h"
#include "platform/result.h"

namespace plenovia {

enum class Nearness { kBright, kDark };  // the brightest, or the darkest pixel is the nearest

// "PNG" for gray files of 16 bits, "PGM" (binary or text, of 8 or 16 bits), "PFM" (gray), by the
// first bytes; empty for all else.
std::string_view FinePictureFormat(std::span<const std::uint8_t> bytes);

// Reads such a file. The brightness from black to white becomes the levels 0..65535; the heights of
// a PFM file, which have no scale, are stretched over them, and those that are not finite have no
// depth: level 0. Of a file that ends early the rest has level 0. Fails with kCorrupt,
// kUnsupported, kInvalid or kTooLarge.
[[nodiscard]] Result<DecodedFineImage> DecodeFinePicture(std::span<const std::uint8_t> bytes,
                                                         Nearness nearness);

}  // namespace plenovia
