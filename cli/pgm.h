// PGM files: gray pictures that every tool of the trade reads.
#pragma once

#include "codec/encoded_picture.h"
#include "platform/fine_image.h"
#include "platform/indexed_image.h"
#include "platform/result.h"

namespace plenovia {

// The binary form (P5) with 255 as white. The pixels are written as they are, without regard to the
// palette says; the picture must outlive the result.
[[nodiscard]] Result<EncodedPicture> EncodePgm(const IndexedImage& picture);
// The same with 65535 as white. kTooLarge when the memory does not suffice.
[[nodiscard]] Result<EncodedPicture> EncodeFinePgm(const FineImage& picture);

}  // namespace plenovia
