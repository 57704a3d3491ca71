#include "sirdspat/indexed_tile.h"

#include <vector>

#include "codec/colour_reducer.h"

namespace plenovia {

Result<IndexedImage> IndexTile(const Tile& tile) {
  ColourReducer reducer(254);
  reducer.Count(tile.pixels);
  reducer.BuildPalette();
  const auto fitted = reducer.palette().entries();
  std::vector<Rgb> colours(fitted.begin(), fitted.end());
  colours.insert(colours.end(), {{255, 255, 0}, {0, 0, 128}});
  Result<IndexedImage> picture =
      IndexedImage::Create(tile.size.width, tile.size.height, Palette(colours));
  if (picture) reducer.Map(tile.pixels, picture->pixels());
  return picture;
}

}  // namespace plenovia
