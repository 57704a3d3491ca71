#include "images/add_pattern.h"

#include <algorithm>
#include <string>
#include <system_error>

#include "codec/graph_io.h"

namespace plenovia {

namespace fs = std::filesystem;

namespace {

constexpr int kSide = 100;

int NextNumber(const PatternFolders& folders) {
  const auto files = FindPatternFiles(folders);
  return files.empty() ? kShippedPatterns : std::max(kShippedPatterns, files.back().number + 1);
}

// The file that was written.
Result<PatternFile> SaveIn(const fs::path& folder, int number, const IndexedImage& tile) {
  if (folder.empty()) {
    return Failure(ErrorCode::kIo, "There is no folder in which patterns can be kept.");
  }
  TGraphIO codec;
  codec.SetGraphicFormat(static_cast<int>(GraphicFormat::kGif));
  const fs::path file = folder / PatternFileName(number);
  if (auto written = codec.Write_File(file, tile); !written) {
    return Failure(written.error().code, file.string() + ": " + written.error().message);
  }
  return PatternFile{number, file};
}

Result<PatternFile> Save(const PatternFolders& folders, int number, const IndexedImage& tile) {
  if (folders.programTakesNew) {
    if (auto file = SaveIn(folders.program, number, tile)) return file;
  }
  std::error_code ignored;
  fs::create_directories(folders.user, ignored);
  return SaveIn(folders.user, number, tile);
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

Result<void> AddPattern(TSirdPatt& library, const IndexedImage& picture) {
  const auto tile = CutPattern(picture);
  if (!tile) return tl::unexpected(tile.error());
  const int number = NextNumber(library.GetFolders());
  if (number >= kMostPatternFiles) {
    return Failure(ErrorCode::kTooLarge, "there are too many patterns");
  }
  const auto file = Save(library.GetFolders(), number, *tile);
  if (!file) return tl::unexpected(file.error());
  auto loaded = library.LoadPatternFile(*file);
  if (!loaded) {
    std::error_code ignored;
    fs::remove(file->path, ignored);
  }
  return loaded;
}

}  // namespace plenovia
