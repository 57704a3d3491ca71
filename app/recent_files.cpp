#include "app/recent_files.h"

#include <algorithm>
#include <string>
#include <system_error>

namespace plenovia {

namespace fs = std::filesystem;

namespace {

constexpr char kSection[] = "Files";

std::string Key(std::size_t place) {
  return "Recent" + std::to_string(place + 1);
}

}  // namespace

void RecentFiles::Add(const fs::path& file) {
  const fs::path added = file.lexically_normal();
  std::erase(files_, added);
  files_.insert(files_.begin(), added);
  if (files_.size() > kKept) files_.resize(kKept);
}

std::vector<fs::path> RecentFiles::Existing() const {
  std::vector<fs::path> existing;
  for (const fs::path& file : files_) {
    std::error_code failed;
    if (existing.size() < kListed && fs::is_regular_file(file, failed)) existing.push_back(file);
  }
  return existing;
}

RecentFiles RecentFiles::Load(const ProfileFile& settings) {
  RecentFiles recent;
  for (std::size_t place = kKept; place-- > 0;) {
    const fs::path file = settings.GetText(kSection, Key(place), "");
    if (file.is_absolute()) recent.Add(file);
  }
  return recent;
}

void RecentFiles::Store(ProfileFile& settings) const {
  for (std::size_t place = 0; place < kKept; ++place) {
    const std::string file = place < files_.size() ? files_[place].string() : std::string();
    if (settings.GetText(kSection, Key(place), "") != file) {
      settings.SetText(kSection, Key(place), file);
    }
  }
}

}  // namespace plenovia
