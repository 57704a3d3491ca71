// What a reader makes of a picture file.
#pragma once

#include <cstddef>
#include <string>
#include <utility>

#include "platform/indexed_image.h"
#include "platform/result.h"

namespace plenovia {

// A picture, what is wrong with its file, and what the program wrote into it.
struct DecodedPicture : IndexedImage {
  // Implicit: most files are whole.
  DecodedPicture(IndexedImage picture, std::string whatIsWrong = {},  // NOLINT
                 std::string ownComment = {})
      : IndexedImage(std::move(picture)),
        damage(std::move(whatIsWrong)),
        comment(std::move(ownComment)) {}

  // A sentence such as "The file is truncated."; empty when the file is whole.
  // The picture then shows what could be read; the rest of its pixels are index 0.
  std::string damage;
  // The program's own comment, as it was written or cut off (codec/picture_comment.h); empty when
  // there is none.
  std::string comment;
};

inline constexpr char kTruncated[] = "The file is truncated.";

inline tl::unexpected<Error> Truncated() {
  return Failure(ErrorCode::kCorrupt, kTruncated);
}

// Whether a file that ends early is worth reading: `claimed` bytes are those that its pixels take,
// `reachable` those that what is left of the file can at most give. So a few bytes never lead to
// much memory.
constexpr bool WorthReading(std::size_t claimed, std::size_t reachable) {
  constexpr std::size_t kAlways = std::size_t{16} << 20;
  return reachable > 0 && (claimed <= kAlways || claimed / 64 <= reachable);
}

}  // namespace plenovia
