#include "images/print_layout.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <vector>

namespace plenovia {

namespace {

constexpr int kMargin = 20;

// The pixel of a side of `pixels` that dot `position` of `dots` lies in.
std::size_t PixelOfDot(int position, int pixels, int dots) {
  return static_cast<std::size_t>(std::int64_t{position} * pixels / dots);
}

// `side` scaled by dots / pixels.
int Scaled(int side, int dots, int pixels) {
  return std::max(1, static_cast<int>(std::int64_t{side} * dots / pixels));
}

std::array<std::uint32_t, 256> Colours(const Palette& palette) {
  std::array<std::uint32_t, 256> colours{};
  for (int i = 0; i < 256; ++i) {
    const Rgb colour = palette[i];
    colours[static_cast<std::size_t>(i)] =
        0xFF000000U | static_cast<std::uint32_t>(colour.red) << 16U |
        static_cast<std::uint32_t>(colour.green) << 8U | colour.blue;
  }
  return colours;
}

}  // namespace

PrintLayout LayOutOnPage(const IndexedImage& picture, int pageWidth, int pageHeight) {
  const int width = std::max(1, pageWidth - 2 * kMargin);
  const int height = std::max(1, pageHeight - 2 * kMargin);
  PrintLayout layout;
  layout.left = kMargin;
  layout.top = kMargin;
  layout.fits = picture.width() < pageWidth && picture.height() < pageHeight;
  const bool widthDecides =
      std::int64_t{width} * picture.height() < std::int64_t{height} * picture.width();
  layout.width = widthDecides ? width : Scaled(picture.width(), height, picture.height());
  layout.height = widthDecides ? Scaled(picture.height(), width, picture.width()) : height;
  return layout;
}

void RenderForPrint(const IndexedImage& picture, const PrintLayout& layout, int firstRow,
                    std::span<std::uint32_t> out) {
  const auto colours = Colours(picture.palette());
  const auto width = static_cast<std::size_t>(layout.width);
  std::vector<std::size_t> columns(width);
  for (int x = 0; x < layout.width; ++x) {
    columns[static_cast<std::size_t>(x)] = PixelOfDot(x, picture.width(), layout.width);
  }
  std::size_t rendered = picture.pixels().size();
  for (std::size_t start = 0; start + width <= out.size(); start += width, ++firstRow) {
    const auto line = out.subspan(start, width);
    const std::size_t source = PixelOfDot(firstRow, picture.height(), layout.height);
    if (source == rendered) {
      std::copy_n(out.begin() + static_cast<std::ptrdiff_t>(start - width), width, line.begin());
      continue;
    }
    const auto row = picture.Row(static_cast<int>(source));
    for (std::size_t x = 0; x < width; ++x) line[x] = colours[row[columns[x]]];
    rendered = source;
  }
}

}  // namespace plenovia
