#include "app/thumbnail.h"

#include <algorithm>
#include <cstdint>
#include <span>
#include <vector>

#include "codec/graph_io.h"
#include "depthmap/depth_map_file.h"
#include "platform/file_io.h"
#include "platform/level_grid.h"
#include "platform/limits.h"
#include "platform/ui/picture_painting.h"
#include "platform/ui/text.h"

namespace plenovia {

namespace {

// Every `step`th point of every `step`th row.
QImage GraysOfLevels(const LevelGrid& map, int step) {
  std::vector<std::int32_t> row(static_cast<std::size_t>(map.GridWidth()));
  std::vector<std::int32_t> levels;
  for (int y = 0; y < map.GridHeight(); y += step) {
    map.LevelRow(y, row);
    for (std::size_t x = 0; x < row.size(); x += static_cast<std::size_t>(step)) {
      levels.push_back(row[x]);
    }
  }
  const auto [far, near] = std::ranges::minmax(levels);
  const std::int64_t range = std::max<std::int64_t>(std::int64_t{near} - far, 1);
  QImage grays((map.GridWidth() + step - 1) / step, (map.GridHeight() + step - 1) / step,
               QImage::Format_Grayscale8);
  auto level = levels.cbegin();
  for (int y = 0; y < grays.height(); ++y) {
    std::generate_n(grays.scanLine(y), grays.width(), [&, farthest = far] {
      return static_cast<uchar>((std::int64_t{*level++} - farthest) * 255 / range);
    });
  }
  return grays;
}

Thumbnail Shrunk(const QImage& image, const QSize& size, const QSize& room) {
  if (image.width() <= room.width() && image.height() <= room.height()) return {image, size};
  return {image.scaled(room, Qt::KeepAspectRatio, Qt::SmoothTransformation), size};
}

Thumbnail OfDepthMap(std::span<const std::uint8_t> file, const QSize& room) {
  const auto read = DecodeDepthMap(file);
  if (!read) return {};
  const LevelGrid& map = read->list;
  const QSize size(map.GridWidth(), map.GridHeight());
  if (size.isEmpty() || size.width() > kMaxSide || size.height() > kMaxSide) {
    return {};
  }
  // Two points for each dot are enough to be smooth.
  const int step =
      std::max({1, size.width() / (2 * room.width()), size.height() / (2 * room.height())});
  return Shrunk(GraysOfLevels(map, step), size, room);
}

}  // namespace

Thumbnail MakeThumbnail(const QString& path, const QSize& room) {
  const auto file = ReadFile(ToPath(path));
  if (!file) return {};
  const std::span<const std::uint8_t> bytes(*file);
  if (LooksLikeDepthMap(bytes)) return OfDepthMap(bytes, room);
  const auto picture = DecodePicture(bytes);
  if (!picture) return {};
  const QSize size(picture->width(), picture->height());
  return Shrunk(ToImage(*picture).convertToFormat(QImage::Format_RGB32), size, room);
}

}  // namespace plenovia
