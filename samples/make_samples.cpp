// make_samples FOLDER: writes the depth pictures and depth maps that ship.
#include <cstdio>
#include <filesystem>

#include "codec/graph_io.h"
#include "depthmap/depth_map_file.h"
#include "platform/file_io.h"
#include "samples/scenes.h"

namespace plenovia {

namespace {

namespace fs = std::filesystem;

Result<void> WritePicture(const Result<IndexedImage>& picture, const fs::path& path) {
  if (!picture) return tl::unexpected(picture.error());
  const Result<EncodedPicture> file = EncodePicture(FormatOfExtension(path.native()), *picture);
  if (!file) return tl::unexpected(file.error());
  return WriteFile(path, file->pieces());
}

Result<void> WriteMap(TDepthList list, const fs::path& path) {
  return WriteDepthMap(list, path);
}

Result<void> MakeSamples(const fs::path& folder) {
  return WritePicture(Island(), folder / "island.png")
      .and_then([&] { return WritePicture(StillLife(), folder / "still-life.png"); })
      .and_then([&] { return WritePicture(Shark(), folder / "shark.png"); })
      .and_then([&] { return WritePicture(ChessEndgame(), folder / "chess.jpg"); })
      .and_then([&] { return WriteMap(House(), folder / "house.rds"); })
      .and_then([&] { return WriteMap(SailingBoat(), folder / "sailing-boat.rds"); });
}

}  // namespace

}  // namespace plenovia

int main(int count, char** words) {
  if (count != 2) {
    std::fprintf(stderr, "usage: make_samples FOLDER\n");
    return 2;
  }
  const plenovia::Result<void> made = plenovia::MakeSamples(words[1]);
  if (!made) std::fprintf(stderr, "make_samples: %s\n", made.error().message.c_str());
  return made ? 0 : 1;
}
