// What every reader of pictures must stand, and small pictures as text.
#pragma once

#include <cstdint>
#include <span>
#include <string>

#include "codec/decoded_picture.h"
#include "platform/pixel_buffer.h"
#include "platform/result.h"

namespace plenovia {

using Reader = Result<DecodedPicture> (*)(std::span<const std::uint8_t>);

// The indexes as hexadecimal digits, rows parted by slashes: "0123/4567". Indexes beyond 15 show
// as '#'. An error shows as its message.
std::string Indexes(const Result<IndexedImage>& picture);
// The colours in the same way, as "rrggbb" parted by blanks.
std::string Colours(const Result<IndexedImage>& picture);

// The file cut off after each of its bytes is refused, said to be damaged, or still the whole
// picture.
void ExpectTruncationIsNoticed(Reader read, const ByteBuffer& file);
// The file with random bytes changed is read to the end or refused; to be run with sanitizers too.
void ExpectCorruptionIsHarmless(Reader read, const ByteBuffer& file);

}  // namespace plenovia
