// What the fuzz targets of formats that keep every pixel check.
#pragma once

#include <cstdint>
#include <cstdlib>
#include <span>

#include "codec/decoded_picture.h"
#include "codec/encoded_picture.h"
#include "platform/result.h"

namespace plenovia {

// Reads the bytes; a picture that comes out must come out again, with the same indexes and the same
// colours, when it is written and read. Aborts otherwise.
inline void CheckPictureRoundTrip(Result<DecodedPicture> (*decode)(std::span<const std::uint8_t>),
                                  Result<EncodedPicture> (*encode)(const IndexedImage&),
                                  std::span<const std::uint8_t> bytes) {
  auto picture = decode(bytes);
  if (!picture) return;
  const auto file = encode(*picture);
  if (!file) std::abort();
  auto again = decode(file->Joined());
  if (!again) std::abort();
  picture->SetPalette(picture->palette().Widened());
  again->SetPalette(again->palette().Widened());
  if (*again != *picture) std::abort();
}

}  // namespace plenovia
