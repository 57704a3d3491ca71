#include "engine/tiling.h"

#include <algorithm>
#include <cstring>

namespace plenovia {

void TilePatternRow(std::span<std::uint8_t> row, const IndexedImage& tile, int origin, int y) {
  const auto source = tile.Row(y % tile.height());
  const int offset = (-origin % tile.width() + tile.width()) % tile.width();
  const std::size_t begin = static_cast<std::size_t>(offset);
  // The first tile's worth of columns, then copies of all that is there.
  std::size_t done = std::min(row.size(), source.size() - begin);
  std::copy_n(source.begin() + offset, done, row.begin());
  const std::size_t rest = std::min(row.size() - done, begin);
  std::copy_n(source.begin(), rest, row.begin() + static_cast<std::ptrdiff_t>(done));
  done += rest;
  while (done < row.size()) {
    const std::size_t count = std::min(done, row.size() - done);
    std::memcpy(row.data() + done, row.data(), count);
    done += count;
  }
}

}  // namespace plenovia
