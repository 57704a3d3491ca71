#include "images/gray_palette.h"

namespace plenovia {

Palette GrayPalette(const Palette& palette) {
  Palette grays = palette;
  for (int i = 0; i < palette.size(); ++i) {
    const Rgb colour = palette[i];
    const auto gray =
        static_cast<std::uint8_t>(0.299 * colour.red + 0.587 * colour.green + 0.114 * colour.blue);
    grays.Set(i, {gray, gray, gray});
  }
  return grays;
}

}  // namespace plenovia
