#include "engine/depth_source.h"

#include <algorithm>
#include <cstddef>

namespace plenovia {

namespace {

// The columns of a row that a source `width` pixels wide feeds: from `start` to the source's width,
// which is the result's; what lies beyond is cut off.
template <class T>
std::span<T> Fed(std::span<T> row, int start, std::size_t width) {
  const auto first = static_cast<std::size_t>(std::max(0, start));
  const std::size_t end = std::min(width, row.size());
  return first < end ? row.subspan(first, end - first) : std::span<T>();
}

}  // namespace

std::int32_t PixelLevel(int index, const Palette& palette, std::int32_t depthSel) {
  if (depthSel == kDepthByColor) return index;
  if (depthSel != kDepthByBrightness || index < 0 || index >= palette.size()) return 0;
  const Rgb c = palette[index];
  return static_cast<std::int32_t>(0.299 * c.red + 0.587 * c.green + 0.114 * c.blue + 0.5);
}

std::array<std::uint8_t, 256> PixelLevels(const Palette& palette, std::int32_t depthSel) {
  std::array<std::uint8_t, 256> levels{};
  for (int i = 0; i < 256; ++i) {
    levels[static_cast<std::size_t>(i)] =
        static_cast<std::uint8_t>(PixelLevel(i, palette, depthSel));
  }
  return levels;
}

void BuildImageDepthRow(std::span<std::int32_t> depth, std::span<const std::uint8_t> sourceRow,
                        const std::array<std::uint8_t, 256>& levels, int start) {
  std::fill(depth.begin(), depth.end(), 0);
  const auto fed = Fed(depth, start, sourceRow.size());
  for (std::size_t x = 0; x < fed.size(); ++x) fed[x] = levels[sourceRow[x]];
}

void BuildMapDepthRow(std::span<std::int32_t> depth, const LevelGrid& map, int scanLine,
                      int start) {
  std::fill(depth.begin(), depth.end(), 0);
  const auto fed = Fed(depth, start, static_cast<std::size_t>(std::max(0, map.GridWidth())));
  if (!fed.empty()) map.LevelRow(map.GridHeight() - 1 - scanLine, fed);
}

void BuildFigureDepthRow(std::span<std::int32_t> depth, FigureLevelFunction level,
                         std::int32_t code, int scanLine, int width, int height,
                         const TSirdsSettings& settings) {
  const std::int32_t half = settings.gapValue / 2;
  // Half the gap lies between a pair's middle, the figure's place, and its right pixel.
  const bool centred = ScanMethodOf(settings.scanMethod).anchor == RevealAnchor::kCentre;
  const std::int32_t first = (centred ? half : 0) - settings.dx;
  const std::int32_t centreColumn = width / 2 + half;
  for (std::size_t x = 0; x < depth.size(); ++x) {
    depth[x] = level(first + static_cast<std::int32_t>(x), scanLine - settings.dy, centreColumn,
                     height / 2, settings.da, code);
  }
}

bool DepthSource::BuildByteRow(int, std::span<std::uint8_t>) const {
  return false;
}

PictureDepth::PictureDepth(const IndexedImage& picture, double zoom, int start,
                           std::int32_t depthSel)
    : picture_(picture),
      zoom_(zoom),
      start_(start),
      byIndex_(depthSel == kDepthByColor),
      levels_(PixelLevels(picture.palette(), depthSel)) {
  if (zoom == 1.0) return;
  columns_.resize(static_cast<std::size_t>(picture.width() * zoom));
  for (std::size_t x = 0; x < columns_.size(); ++x) {
    columns_[x] = static_cast<std::size_t>(Nearest(static_cast<int>(x), picture.width()));
  }
}

// The source's pixel, 0..size-1, that the magnified picture shows at `at`.
int PictureDepth::Nearest(int at, int size) const {
  return zoom_ == 1.0 ? at : std::min(static_cast<int>(at / zoom_), size - 1);
}

void PictureDepth::BuildRow(int scanLine, std::span<std::int32_t> depth) const {
  const auto source = picture_.ScanLine(Nearest(scanLine, picture_.height()));
  if (columns_.empty()) {
    BuildImageDepthRow(depth, source, levels_, start_);
    return;
  }
  std::fill(depth.begin(), depth.end(), 0);
  const auto fed = Fed(depth, start_, columns_.size());
  for (std::size_t x = 0; x < fed.size(); ++x) fed[x] = levels_[source[columns_[x]]];
}

bool PictureDepth::BuildByteRow(int scanLine, std::span<std::uint8_t> depth) const {
  const auto source = picture_.ScanLine(Nearest(scanLine, picture_.height()));
  const auto fed = Fed(depth, start_, columns_.empty() ? source.size() : columns_.size());
  if (!columns_.empty()) {
    for (std::size_t x = 0; x < fed.size(); ++x) fed[x] = levels_[source[columns_[x]]];
  } else if (byIndex_) {
    std::copy_n(source.begin(), fed.size(), fed.begin());
  } else {
    for (std::size_t x = 0; x < fed.size(); ++x) fed[x] = levels_[source[x]];
  }
  const std::size_t before = std::min(depth.size(), static_cast<std::size_t>(start_));
  std::fill_n(depth.begin(), before, std::uint8_t{0});
  const auto after = depth.subspan(before + fed.size());
  std::fill(after.begin(), after.end(), std::uint8_t{0});
  return true;
}

void FineDepth::BuildRow(int scanLine, std::span<std::int32_t> depth) const {
  std::ranges::fill(depth, 0);
  const auto row = image_.Row(image_.height() - 1 - scanLine);
  const auto fed = Fed(depth, start_, row.size());
  std::copy_n(row.begin(), fed.size(), fed.begin());
}

void MapDepth::BuildRow(int scanLine, std::span<std::int32_t> depth) const {
  BuildMapDepthRow(depth, map_, scanLine, start_);
}

void FigureDepth::BuildRow(int scanLine, std::span<std::int32_t> depth) const {
  BuildFigureDepthRow(depth, level_, code_, scanLine, width_, height_, settings_);
}

}  // namespace plenovia
