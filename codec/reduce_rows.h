// Rows of true colour made into a picture with a palette, without a copy of all their colours.
#pragma once

#include <vector>

#include "codec/colour_reducer.h"
#include "platform/indexed_image.h"

namespace plenovia {

// `readRow(y, colours)` fills one row and returns false when the file ends too early. It is called
// for the rows 0, 1, ... height-1 from the top, in that order, and then for all of them again.
template <class ReadRow>
[[nodiscard]] Result<IndexedImage> ReduceRows(int width, int height, const ReadRow& readRow) {
  const auto truncated = [] { return Failure(ErrorCode::kCorrupt, "the file is truncated"); };
  std::vector<Rgb> row(static_cast<std::size_t>(width));
  ColourReducer reducer;
  for (int y = 0; y < height; ++y) {
    if (!readRow(y, std::span<Rgb>(row))) return truncated();
    reducer.Count(row);
  }
  reducer.BuildPalette();
  Result<IndexedImage> image = IndexedImage::Create(width, height, reducer.palette());
  for (int y = 0; image && y < height; ++y) {
    if (!readRow(y, std::span<Rgb>(row))) return truncated();
    reducer.Map(row, image->Row(y));
  }
  return image;
}

}  // namespace plenovia
