#include "images/add_pattern.h"

#include <string>
#include <system_error>

#include "codec/graph_io.h"
#include "images/pattern_files.h"

namespace plenovia {

namespace fs = std::filesystem;

namespace {

constexpr int kSide = 100;

// Whether a new file of that name would harm nothing.
bool IsFree(const fs::path& file) {
  std::error_code ignored;
  return fs::symlink_status(file, ignored).type() == fs::file_type::not_found;
}

Result<std::string> FreeName(const fs::path& folder, const fs::path& userFolder) {
  for (int number = 0; number < kMostPatternFiles; ++number) {
    const std::string name = PatternFileName(number);
    if (IsFree(folder / name) && IsFree(userFolder / name)) return name;
  }
  return Failure(ErrorCode::kTooLarge, "there are too many patterns");
}

// The file that was written.
Result<fs::path> SaveIn(const fs::path& folder, const std::string& name, const IndexedImage& tile) {
  if (folder.empty()) return Failure(ErrorCode::kIo, "there is no folder for patterns");
  TGraphIO codec;
  codec.SetGraphicFormat(static_cast<int>(GraphicFormat::kGif));
  const fs::path file = folder / name;
  if (auto written = codec.Write_File(file, tile); !written) return tl::unexpected(written.error());
  return file;
}

Result<fs::path> Save(const fs::path& folder, const fs::path& userFolder, const std::string& name,
                      const IndexedImage& tile) {
  if (auto file = SaveIn(folder, name, tile)) return file;
  std::error_code ignored;
  fs::create_directories(userFolder, ignored);
  return SaveIn(userFolder, name, tile);
}

}  // namespace

Result<IndexedImage> CutPattern(const IndexedImage& picture) {
  if (picture.empty()) return Failure(ErrorCode::kInvalid, "the picture is empty");
  auto tile = IndexedImage::Create(kSide, kSide, picture.palette());
  if (!tile) return tile;
  for (int y = 0; y < kSide; ++y) {
    const auto from = picture.Row(y % picture.height());
    const auto to = tile->Row(y);
    for (std::size_t x = 0; x < to.size(); ++x) to[x] = from[x % from.size()];
  }
  return tile;
}

Result<void> AddPattern(TSirdPatt& library, const IndexedImage& picture,
                        const fs::path& userFolder) {
  const auto tile = CutPattern(picture);
  if (!tile) return tl::unexpected(tile.error());
  const auto name = FreeName(library.GetDirectory(), userFolder);
  if (!name) return tl::unexpected(name.error());
  const auto file = Save(library.GetDirectory(), userFolder, *name, *tile);
  if (!file) return tl::unexpected(file.error());
  auto loaded = library.LoadPatternFile(*file);
  if (!loaded) {
    std::error_code ignored;
    fs::remove(*file, ignored);
  }
  return loaded;
}

}  // namespace plenovia
