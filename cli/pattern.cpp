#include "cli/pattern.h"

#include <algorithm>
#include <charconv>
#include <utility>

#include "cli/source.h"

namespace plenovia {

Outcome<std::vector<PatternFile>> PatternLibrary() {
  auto files = FindPatternFiles(FindPatternFolders(ProgramFile()));
  if (!files.empty()) return files;
  return Failed("sirdspat", {ErrorCode::kIo, "The folder of the patterns is not installed."});
}

namespace {

Outcome<Tile> ReadTile(const std::string& file, int threads) {
  return ReadPicture(file, threads).map([&](IndexedImage&& picture) {
    return Tile{std::move(picture), file};
  });
}

}  // namespace

Outcome<Tile> OpenPattern(const std::string& text, int threads) {
  const bool digits = !text.empty() && std::all_of(text.begin(), text.end(),
                                                   [](char c) { return c >= '0' && c <= '9'; });
  if (!digits) return ReadTile(text, threads);
  const auto library = PatternLibrary();
  if (!library) return tl::unexpected(library.error());
  int number = -1;
  std::from_chars(text.data(), text.data() + text.size(), number);
  const auto file = std::find_if(library->begin(), library->end(),
                                 [=](const PatternFile& f) { return f.number == number; });
  if (file == library->end()) {
    return WrongUsage("there is no pattern " + text + "; 'sirds patterns' lists them");
  }
  return ReadTile(file->path.string(), threads);
}

}  // namespace plenovia
