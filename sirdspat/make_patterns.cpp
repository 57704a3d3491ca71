// make_patterns FOLDER: writes the tiles of the table into the folder as pat00.gif, pat01.gif, ...,
// prints how well each suits its purpose and ends with 1 when one does not.
#include <cstdio>
#include <filesystem>
#include <string>

#include "codec/gif.h"
#include "platform/file_io.h"
#include "sirdspat/indexed_tile.h"
#include "sirdspat/tile_quality.h"
#include "sirdspat/tile_table.h"

namespace plenovia {

namespace {

Result<IndexedImage> WriteTile(const TileRecipe& recipe, const std::filesystem::path& path) {
  Result<IndexedImage> picture = IndexTile(recipe.make(recipe.seed));
  if (!picture) return picture;
  const Result<EncodedPicture> file = EncodeGif(*picture);
  if (!file) return tl::unexpected(file.error());
  if (const Result<void> written = WriteFile(path, file->pieces()); !written) {
    return tl::unexpected(written.error());
  }
  return picture;
}

int MakePatterns(const std::filesystem::path& folder) {
  int number = 0;
  int bad = 0;
  std::printf("tile                  size     repeat  local  detail  seam\n");
  for (const TileRecipe& recipe : TileTable()) {
    const std::string digits = std::to_string(number++);
    const std::string name = "pat" + std::string(digits.size() < 2 ? "0" : "") + digits + ".gif";
    const Result<IndexedImage> picture = WriteTile(recipe, folder / name);
    if (!picture) {
      std::fprintf(stderr, "make_patterns: %s: %s\n", name.c_str(),
                   picture.error().message.c_str());
      return 1;
    }
    const TileQuality quality = MeasureTile(*picture);
    const bool good = IsGoodToFuse(quality);
    if (!good) ++bad;
    std::printf("%s %-13s %d x %d  %5.2f  %5.2f  %6.1f  %4.2f%s\n",
                digits.size() < 2 ? (" " + digits).c_str() : digits.c_str(), recipe.name,
                picture->width(), picture->height(), quality.repeat, quality.localRepeat,
                quality.leastDetail, quality.seam, good ? "" : "  out of bounds");
  }
  std::printf("bounds                          %5.2f  %5.2f  %6.1f  %4.2f\n", kMostRepeat,
              kMostLocalRepeat, kLeastDetail, kMostSeam);
  return bad == 0 ? 0 : 1;
}

}  // namespace

}  // namespace plenovia

int main(int count, char** words) {
  if (count != 2) {
    std::fprintf(stderr, "usage: make_patterns FOLDER\n");
    return 2;
  }
  return plenovia::MakePatterns(words[1]);
}
