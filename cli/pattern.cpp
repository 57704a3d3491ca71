#include "cli/pattern.h"

#include <algorithm>
#include <charconv>
#include <optional>

#include "cli/source.h"
#include "images/pattern_files.h"

namespace plenovia {

namespace fs = std::filesystem;

Outcome<fs::path> PatternFolder() {
  if (auto folder = FindPatternFolder(ProgramFile())) return *folder;
  return Failed("sirdspat", {ErrorCode::kIo, "the folder of the patterns is not installed"});
}

Outcome<IndexedImage> OpenPattern(const std::string& text) {
  const bool digits = !text.empty() && std::all_of(text.begin(), text.end(),
                                                   [](char c) { return c >= '0' && c <= '9'; });
  if (!digits) return ReadPicture(text);
  const auto folder = PatternFolder();
  if (!folder) return tl::unexpected(folder.error());
  int number = -1;
  std::from_chars(text.data(), text.data() + text.size(), number);
  const auto file =
      number < 0 ? std::nullopt : FindPatternFile(number, *folder, UserPatternFolder());
  if (!file) {
    return WrongUsage("there is no pattern " + text + "; 'sirds patterns' lists them");
  }
  return ReadPicture(file->string());
}

}  // namespace plenovia
