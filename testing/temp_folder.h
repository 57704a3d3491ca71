// A folder of its own for one test.
#pragma once

#include <filesystem>
#include <string>

namespace plenovia {

// Made empty, removed with all that is in it.
class TempFolder {
 public:
  TempFolder();
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;
  ~TempFolder();

  const std::filesystem::path& path() const { return path_; }
  std::filesystem::path operator/(const std::string& name) const { return path_ / name; }
  // How many files and folders lie directly in it.
  int Count() const;

 private:
  std::filesystem::path path_;
};

}  // namespace plenovia
