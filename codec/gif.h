// GIF files.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "codec/decoded_picture.h"
#include "codec/encoded_picture.h"
#include "platform/result.h"

namespace plenovia {

// Whether the bytes begin like a GIF file, 87a or 89a.
bool LooksLikeGif(std::span<const std::uint8_t> bytes);

// Reads the first frame, with its own palette or else the common one (256 grays when there is
// neither), colours in their order. The picture is as large as the logical screen, or larger where
// the frame reaches beyond it; around the frame lies the transparent colour, or without one the
// background colour. A file that ends early or is damaged among its pixels gives those that come
// before, the rest in the same colour. Fails with kCorrupt, kTooLarge or kInvalid.
[[nodiscard]] Result<DecodedPicture> DecodeGif(std::span<const std::uint8_t> bytes);

// 87a, not interlaced, one common palette: the picture's colours, then black up to a power of two.
// At most `threads` work on it, or one a processor when that is 0; the file is always the same.
// With a comment (plain ASCII) it is 89a, as older files have none.
[[nodiscard]] Result<EncodedPicture> EncodeGif(const IndexedImage& picture, int threads = 0,
                                               std::string_view comment = {});

// The library that does it, with its version.
std::string_view GifLibrary();

}  // namespace plenovia
