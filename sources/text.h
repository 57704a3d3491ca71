// Depth from letters.
#pragma once

#include <cstddef>
#include <string>

#include "platform/fine_image.h"
#include "platform/result.h"

namespace plenovia {

inline constexpr std::size_t kLongestText = 2000;  // bytes

enum class TextProfile { kFlat, kRound };

struct Text {
  std::string lines;  // UTF-8, parted by line ends
  // The name of a font that is installed, such as "DejaVu Sans Bold", or a font file; what has a
  // slash in it is a file.
  std::string font = "DejaVu Sans Bold";
  TextProfile profile = TextProfile::kFlat;
};

// Letters on the far plane, the lines centred, as large as fits with a margin. A flat profile has
// level 65535 in the letters and 0 around them; a round one rises from the outline like half a pipe
// to 65535 where the letters are widest. Fails as FineImage::Create() does; with kInvalid for a
// text that shows nothing, is too long or not UTF-8, and for a size that is too small for it; with
// kIo when there is no such font.
[[nodiscard]] Result<FineImage> DrawText(const Text& text, int width, int height);

}  // namespace plenovia
