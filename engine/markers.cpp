#include "engine/markers.h"

namespace plenovia {

void DrawMarkers(IndexedImage& picture, std::int32_t gap) {
  constexpr int kTop = 5;
  constexpr int kSize = 5;
  const std::uint8_t black = picture.palette().Nearest({0, 0, 0});
  const std::uint8_t yellow = picture.palette().Nearest({255, 255, 0});
  for (const int centre : {picture.width() / 2 - gap / 2, picture.width() / 2 + gap / 2}) {
    for (int j = 0; j < kSize; ++j) {
      for (int i = 0; i < kSize; ++i) {
        const int x = centre - kSize / 2 + i;
        const int y = kTop + j;
        if (x < 0 || x >= picture.width() || y >= picture.height()) continue;
        const bool edge = i == 0 || j == 0 || i == kSize - 1 || j == kSize - 1;
        picture.Row(y)[static_cast<std::size_t>(x)] = edge ? black : yellow;
      }
    }
  }
}

}  // namespace plenovia
