// A file that is still being written.
#pragma once

#include <sys/types.h>

#include <filesystem>
#include <string>

namespace plenovia {

// Open for writing under a name of its own, and locked as long as it is. Removed at the end, unless
// it took the place of another. What killed programs left of such files goes when the next one is
// created in their folder.
class TemporaryFile {
 public:
  // In the folder of `target`, with these permissions as far as the process grants them to new
  // files.
  TemporaryFile(const std::filesystem::path& target, mode_t permissions);
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;
  ~TemporaryFile();

  // Negative, with the reason in errno, when the file could not be created.
  int descriptor() const { return descriptor_; }
  // Takes the place of `target` in one step, once all is written. False, with the reason in errno,
  // when that fails.
  [[nodiscard]] bool Replace(const std::filesystem::path& target);

 private:
  std::string name_;
  int descriptor_ = -1;
};

}  // namespace plenovia
