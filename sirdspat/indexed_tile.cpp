#include "sirdspat/indexed_tile.h"

#include "codec/colour_reducer.h"

namespace plenovia {

Result<IndexedImage> IndexTile(const Tile& tile) {
  ColourReducer reducer;
  reducer.Count(tile.pixels);
  reducer.BuildPalette();
  Result<IndexedImage> picture =
      IndexedImage::Create(tile.size.width, tile.size.height, reducer.palette());
  if (picture) reducer.Map(tile.pixels, picture->pixels());
  return picture;
}

}  // namespace plenovia
