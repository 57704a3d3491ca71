// The files that were opened or saved last.
#pragma once

#include <cstddef>
#include <filesystem>
#include <vector>

#include "platform/profile_file.h"

namespace plenovia {

class RecentFiles {
 public:
  static constexpr std::size_t kListed = 10;
  // More are kept, as some may be gone when the list is shown.
  static constexpr std::size_t kKept = 20;

  // Puts the file on top; it is there once. `file` is an absolute path.
  void Add(const std::filesystem::path& file);
  // Those that exist, newest first, at most kListed.
  std::vector<std::filesystem::path> Existing() const;

  // Section "Files" of the settings, "Recent1" is the newest.
  static RecentFiles Load(const ProfileFile& settings);
  void Store(ProfileFile& settings) const;

 private:
  std::vector<std::filesystem::path> files_;  // newest first
};

}  // namespace plenovia
