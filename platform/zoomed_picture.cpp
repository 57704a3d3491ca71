#include "platform/zoomed_picture.h"

#include <algorithm>
#include <array>
#include <cassert>
#include <cstddef>
#include <vector>

namespace plenovia {

namespace {

constexpr std::uint32_t kBlack = 0xFF000000U;

std::array<std::uint32_t, 256> Colours(const Palette& palette) {
  std::array<std::uint32_t, 256> colours{};
  for (int i = 0; i < 256; ++i) {
    const Rgb colour = palette[i];
    colours[static_cast<std::size_t>(i)] = kBlack | static_cast<std::uint32_t>(colour.red) << 16U |
                                           static_cast<std::uint32_t>(colour.green) << 8U |
                                           colour.blue;
  }
  return colours;
}

// The picture's columns or rows for `count` places from `first` on; -1 outside of the picture.
std::vector<int> Sources(std::int64_t first, std::int64_t count, int side, double zoom) {
  std::vector<int> sources(static_cast<std::size_t>(count), -1);
  const int zoomedSide = ZoomedSide(side, zoom);
  for (std::int64_t i = 0; i < count; ++i) {
    const std::int64_t place = first + i;
    if (place < 0 || place >= zoomedSide) continue;
    sources[static_cast<std::size_t>(i)] =
        std::min(UnzoomedPosition(static_cast<int>(place), zoom), side - 1);
  }
  return sources;
}

}  // namespace

int ZoomedSide(int pixels, double zoom) {
  return static_cast<int>(pixels * zoom);
}

int UnzoomedPosition(int position, double zoom) {
  const double exact = position / zoom;
  const int truncated = static_cast<int>(exact);
  return truncated > exact ? truncated - 1 : truncated;
}

void RenderZoomed(const IndexedImage& picture, double zoom, const PixelRect& area,
                  std::span<std::uint32_t> out) {
  const std::int64_t width = area.right - area.left;
  const std::int64_t height = area.bottom - area.top;
  if (width <= 0 || height <= 0) return;
  assert(out.size() == static_cast<std::size_t>(width * height));
  const auto colours = Colours(picture.palette());
  const std::vector<int> columns = Sources(area.left, width, picture.width(), zoom);
  const std::vector<int> rows = Sources(area.top, height, picture.height(), zoom);
  const auto stride = static_cast<std::size_t>(width);
  for (std::size_t y = 0; y < rows.size(); ++y) {
    const auto line = out.subspan(y * stride, stride);
    if (rows[y] < 0) {
      std::fill(line.begin(), line.end(), kBlack);
    } else if (y > 0 && rows[y] == rows[y - 1]) {
      std::copy_n(out.begin() + static_cast<std::ptrdiff_t>((y - 1) * stride), width, line.begin());
    } else {
      const auto source = picture.Row(rows[y]);
      for (std::size_t x = 0; x < columns.size(); ++x) {
        line[x] = columns[x] < 0 ? kBlack : colours[source[static_cast<std::size_t>(columns[x])]];
      }
    }
  }
}

}  // namespace plenovia
