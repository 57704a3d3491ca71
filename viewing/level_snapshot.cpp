#include "viewing/level_snapshot.h"

#include <algorithm>
#include <cstddef>

namespace plenovia {

namespace {

constexpr int kBandRows = 16;

}  // namespace

LevelSnapshot::LevelSnapshot(int width, int height)
    : width_(std::max(0, width)),
      height_(std::max(0, height)),
      bands_(static_cast<std::size_t>((height_ + kBandRows - 1) / kBandRows)) {}

std::shared_ptr<const LevelSnapshot> LevelSnapshot::Of(const LevelGrid& grid) {
  const std::shared_ptr<LevelSnapshot> made(new LevelSnapshot(grid.GridWidth(), grid.GridHeight()));
  for (int band = 0; band * kBandRows < made->height_; ++band) made->Read(grid, band);
  return made;
}

std::shared_ptr<const LevelSnapshot> LevelSnapshot::Updated(const LevelGrid& grid, int first,
                                                            int end) const {
  if (grid.GridWidth() != width_ || grid.GridHeight() != height_) return Of(grid);
  const std::shared_ptr<LevelSnapshot> made(new LevelSnapshot(*this));
  const int stop = std::min(end, height_);
  for (int band = std::max(0, first) / kBandRows; band * kBandRows < stop; ++band) {
    made->Read(grid, band);
  }
  return made;
}

void LevelSnapshot::Read(const LevelGrid& grid, int band) {
  const auto width = static_cast<std::size_t>(width_);
  const int first = band * kBandRows;
  const int rows = std::min(kBandRows, height_ - first);
  const auto levels = std::make_shared<Band>(width * static_cast<std::size_t>(rows));
  for (int i = 0; i < rows; ++i) {
    grid.LevelRow(first + i,
                  std::span(*levels).subspan(static_cast<std::size_t>(i) * width, width));
  }
  bands_[static_cast<std::size_t>(band)] = levels;
}

void LevelSnapshot::LevelRow(int y, std::span<std::int32_t> levels) const {
  std::fill(levels.begin(), levels.end(), 0);
  if (y < 0 || y >= height_) return;
  const auto width = static_cast<std::size_t>(width_);
  const auto row = std::span(*bands_[static_cast<std::size_t>(y / kBandRows)])
                       .subspan(static_cast<std::size_t>(y % kBandRows) * width, width);
  std::copy_n(row.begin(), std::min(row.size(), levels.size()), levels.begin());
}

}  // namespace plenovia
