#include "images/pattern_files.h"

#include <algorithm>
#include <cstdlib>
#include <system_error>

#include "platform/leading_number.h"

namespace plenovia {

namespace fs = std::filesystem;

namespace {

constexpr char kFolderName[] = "sirdspat";

// In no order. None when there is no such folder.
std::vector<PatternFile> FilesIn(const fs::path& folder) {
  std::vector<PatternFile> files;
  std::error_code failed;
  for (fs::directory_iterator entry(folder, failed), end; !failed && entry != end;
       entry.increment(failed)) {
    const std::string name = entry->path().filename();
    const int number = name.starts_with("pat") ? LeadingNumber(name.substr(3)) : -1;
    if (number < 0 || number >= kMostPatternFiles) continue;
    if (name == PatternFileName(number)) files.push_back({number, entry->path()});
  }
  return files;
}

}  // namespace

std::string PatternFileName(int number) {
  return (number < 10 ? "pat0" : "pat") + std::to_string(number) + ".gif";
}

PatternFolders FindPatternFolders(const fs::path& program) {
  const fs::path user = UserPatternFolder();
  const fs::path home = program.parent_path();
  for (const fs::path& folder :
       {home / kFolderName, home.parent_path() / "share" / "plenovia" / kFolderName}) {
    if (!FilesIn(folder).empty()) return {folder, user, true};
  }
  for (fs::path above = home; above != above.parent_path(); above = above.parent_path()) {
    const fs::path folder = above.parent_path() / kFolderName;
    if (!FilesIn(folder).empty()) return {folder, user, false};
  }
  return {{}, user, false};
}

fs::path UserPatternFolder() {
  const auto folderOf = [](const char* variable) {
    const char* value = std::getenv(variable);
    const fs::path folder = value == nullptr ? "" : value;
    return folder.is_absolute() ? folder : fs::path();
  };
  fs::path data = folderOf("XDG_DATA_HOME");
  if (data.empty() && !folderOf("HOME").empty()) data = folderOf("HOME") / ".local" / "share";
  return data.empty() ? data : data / "plenovia" / kFolderName;
}

std::vector<PatternFile> FindPatternFiles(const PatternFolders& folders) {
  std::vector<PatternFile> files = FilesIn(folders.program);
  const std::vector<PatternFile> added = FilesIn(folders.user);
  files.insert(files.end(), added.begin(), added.end());
  std::stable_sort(files.begin(), files.end(),
                   [](const PatternFile& a, const PatternFile& b) { return a.number < b.number; });
  return files;
}

fs::path ProgramFile() {
  std::error_code error;
  fs::path program = fs::read_symlink("/proc/self/exe", error);
  return error ? fs::path() : program;
}

}  // namespace plenovia
