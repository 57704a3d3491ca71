#include "images/pattern_files.h"

#include <algorithm>
#include <cstdlib>
#include <system_error>

#include "platform/leading_number.h"

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

fs::path UserPatternFolder() {
  const auto folderOf = [](const char* variable) {
    const char* value = std::getenv(variable);
    const fs::path folder = value == nullptr ? "" : value;
    return folder.is_absolute() ? folder : fs::path();
  };
  fs::path data = folderOf("XDG_DATA_HOME");
  if (data.empty() && !folderOf("HOME").empty()) data = folderOf("HOME") / ".local" / "share";
  return data.empty() ? data : data / "plenovia" / "sirdspat";
}

std::optional<fs::path> FindPatternFile(int number, const fs::path& folder,
                                        const fs::path& userFolder) {
  for (const fs::path& home : {folder, userFolder}) {
    std::error_code ignored;
    const fs::path file = home / PatternFileName(number);
    if (!home.empty() && fs::is_regular_file(file, ignored)) return file;
  }
  return std::nullopt;
}

std::vector<int> PatternNumbersIn(const fs::path& folder) {
  std::vector<int> numbers;
  std::error_code failed;
  for (fs::directory_iterator entry(folder, failed), end; !failed && entry != end;
       entry.increment(failed)) {
    const std::string name = entry->path().filename();
    const int number = name.starts_with("pat") ? LeadingNumber(name.substr(3)) : -1;
    if (number < 0 || number >= kMostPatternFiles) continue;
    if (name == PatternFileName(number)) numbers.push_back(number);
  }
  std::sort(numbers.begin(), numbers.end());
  return numbers;
}

fs::path ProgramFile() {
  std::error_code error;
  fs::path program = fs::read_symlink("/proc/self/exe", error);
  return error ? fs::path() : program;
}

}  // namespace plenovia
