// Rows of true colour made into a picture with a palette, without a copy of all their colours.
#pragma once

#include <vector>

#include "codec/colour_reducer.h"
#include "codec/decoded_picture.h"

namespace plenovia {

// `readRow(y, colours)` fills one row and returns false when the file lacks it. It is called for
// the rows 0, 1, ... height-1 from the top, in that order, and then for all of them again. kCorrupt
// when the file has no row at all.
template <class ReadRow>
[[nodiscard]] Result<DecodedPicture> ReduceRows(int width, int height, const ReadRow& readRow) {
  std::vector<Rgb> row(static_cast<std::size_t>(width));
  ColourReducer reducer;
  int counted = 0;
  for (int y = 0; y < height; ++y) {
    if (!readRow(y, std::span<Rgb>(row))) continue;
    reducer.Count(row);
    ++counted;
  }
  if (counted == 0) return Truncated();
  reducer.BuildPalette();
  Result<IndexedImage> image = IndexedImage::Create(width, height, reducer.palette());
  if (!image) return tl::unexpected(image.error());
  if (counted < height) image->Fill(0);
  for (int y = 0; y < height; ++y) {
    if (readRow(y, std::span<Rgb>(row))) reducer.Map(row, image->Row(y));
  }
  return DecodedPicture(std::move(*image), counted < height ? kTruncated : "");
}

}  // namespace plenovia
