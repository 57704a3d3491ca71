#include "images/pattern_files.h"

#include <system_error>

namespace plenovia {

namespace fs = std::filesystem;

std::string PatternFileName(int number) {
  return (number < 10 ? "pat0" : "pat") + std::to_string(number) + ".gif";
}

std::optional<fs::path> FindPatternFolder(const fs::path& program) {
  const std::string name = "sirdspat";
  const auto holdsPatterns = [](const fs::path& folder) {
    std::error_code ignored;
    return fs::is_regular_file(folder / PatternFileName(0), ignored);
  };
  const fs::path home = program.parent_path();
  for (const fs::path& folder : {home / name, home.parent_path() / "share" / "plenovia" / name}) {
    if (holdsPatterns(folder)) return folder;
  }
  for (fs::path above = home; above != above.parent_path(); above = above.parent_path()) {
    if (holdsPatterns(above.parent_path() / name)) return above.parent_path() / name;
  }
  return std::nullopt;
}

fs::path ProgramFile() {
  std::error_code error;
  fs::path program = fs::read_symlink("/proc/self/exe", error);
  return error ? fs::path() : program;
}

}  // namespace plenovia
