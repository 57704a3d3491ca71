#include "platform/temporary_file.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/random.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <system_error>

namespace plenovia {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kPrefix = ".plenovia-";
constexpr std::string_view kDigits = "0123456789abcdef";
constexpr std::size_t kNameDigits = 16;

std::string NewName() {
  std::uint64_t number = 0;
  if (getrandom(&number, sizeof number, 0) < 0) number = static_cast<std::uint64_t>(getpid());
  std::string name(kPrefix);
  for (std::size_t i = 0; i < kNameDigits; ++i) name += kDigits[number >> (4 * i) & 15];
  return name;
}

bool IsOurs(std::string_view name) {
  return name.size() == kPrefix.size() + kNameDigits && name.starts_with(kPrefix) &&
         name.find_first_not_of(kDigits, kPrefix.size()) == std::string_view::npos;
}

// A lock that is free belongs to nobody who lives.
void RemoveIfAbandoned(const fs::path& file) {
  const int descriptor = open(file.c_str(), O_RDWR | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK);
  if (descriptor < 0) return;
  struct stat status {};
  if (fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode) &&
      flock(descriptor, LOCK_EX | LOCK_NB) == 0) {
    unlink(file.c_str());
  }
  close(descriptor);
}

void RemoveAbandoned(const fs::path& folder) {
  std::error_code failed;
  for (fs::directory_iterator entry(folder, failed), end; !failed && entry != end;
       entry.increment(failed)) {
    if (IsOurs(entry->path().filename().native())) RemoveIfAbandoned(entry->path());
  }
}

// Whether the file stays: before it is locked another saver may take it for an abandoned one.
bool Lock(int descriptor) {
  struct stat status {};
  // Any other failure: without locks nobody removes anything.
  if (flock(descriptor, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) return false;
  return fstat(descriptor, &status) == 0 && status.st_nlink > 0;
}

}  // namespace

TemporaryFile::TemporaryFile(const fs::path& target, mode_t permissions) {
  const fs::path folder = target.has_parent_path() ? target.parent_path() : fs::path(".");
  RemoveAbandoned(folder);
  constexpr int kTries = 100;
  for (int i = 0; i < kTries && descriptor_ < 0; ++i) {
    name_ = folder / NewName();
    descriptor_ = open(name_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, permissions);
    if (descriptor_ < 0 && errno != EEXIST) return;
    if (descriptor_ >= 0 && !Lock(descriptor_)) {
      close(descriptor_);
      descriptor_ = -1;
      errno = EEXIST;
    }
  }
}

TemporaryFile::~TemporaryFile() {
  if (descriptor_ < 0) return;
  if (!name_.empty()) unlink(name_.c_str());
  close(descriptor_);
}

bool TemporaryFile::Replace(const fs::path& target) {
  // Some file systems tell only when a file is closed that it could not be written. The lock lasts
  // until the last descriptor is closed.
  const int copy = dup(descriptor_);
  if (copy < 0 || close(copy) != 0) return false;
  if (rename(name_.c_str(), target.c_str()) != 0) return false;
  name_.clear();
  return true;
}

}  // namespace plenovia
