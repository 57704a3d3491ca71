#include "engine/caption.h"

#include <cstddef>

namespace plenovia {

namespace {

constexpr Rgb kYellow{255, 255, 0};
constexpr Rgb kNavy{0, 0, 128};

void DrawDots(IndexedImage& picture, const TextDots& text, std::size_t left, int top, Rgb colour) {
  const std::uint8_t index = picture.palette().Nearest(colour);
  const auto width = static_cast<std::size_t>(text.width);
  for (int y = 0; y < text.height; ++y) {
    if (top + y < 0 || top + y >= picture.height()) continue;
    const auto row = picture.Row(top + y);
    const auto dots = text.dots.subspan(static_cast<std::size_t>(y) * width, width);
    for (std::size_t x = 0; x < width && left + x < row.size(); ++x) {
      if (dots[x] != 0) row[left + x] = index;
    }
  }
}

}  // namespace

void DrawCaption(IndexedImage& picture, const TextDots& text) {
  DrawDots(picture, text, 9, picture.height() - 21, kYellow);
  DrawDots(picture, text, 10, picture.height() - 20, kNavy);
}

}  // namespace plenovia
