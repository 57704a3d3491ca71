#include "platform/file_io.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/uio.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <new>
#include <string>
#include <system_error>
#include <vector>

#include "platform/temporary_file.h"

namespace plenovia {

namespace fs = std::filesystem;

namespace {

tl::unexpected<Error> SystemFailure(const std::string& what) {
  return Failure(ErrorCode::kIo, what + ": " + std::strerror(errno) + ".");
}

// A file descriptor that closes itself.
class Descriptor {
 public:
  explicit Descriptor(int value) : value_(value) {}
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor() {
    if (value_ >= 0) close(value_);
  }
  int get() const { return value_; }

 private:
  int value_;
};

bool WriteAll(int descriptor, std::span<const std::span<const std::uint8_t>> pieces) {
  constexpr std::size_t kPiecesAtOnce = 512;
  std::array<iovec, kPiecesAtOnce> parts{};
  std::size_t piece = 0;
  std::size_t done = 0;  // bytes of pieces[piece] that are written
  while (piece < pieces.size()) {
    const std::size_t count = std::min(kPiecesAtOnce, pieces.size() - piece);
    for (std::size_t i = 0; i < count; ++i) {
      const auto rest = pieces[piece + i].subspan(i == 0 ? done : 0);
      parts[i] = {const_cast<std::uint8_t*>(rest.data()), rest.size()};
    }
    const ssize_t written = writev(descriptor, parts.data(), static_cast<int>(count));
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) return false;
    done += static_cast<std::size_t>(written);
    while (piece < pieces.size() && done >= pieces[piece].size()) {
      done -= pieces[piece].size();
      ++piece;
    }
  }
  return true;
}

// The place that a chain of symbolic links ends at.
fs::path FollowLinks(fs::path path) {
  for (int links = 0; links < 40; ++links) {
    std::error_code error;
    const fs::path target = fs::read_symlink(path, error);
    if (error) return path;
    path = target.is_absolute() ? target : path.parent_path() / target;
  }
  return path;
}

}  // namespace

Result<ByteBuffer> ReadFile(const fs::path& path, std::size_t most) {
  const Descriptor file(open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
  if (file.get() < 0) return SystemFailure("The file cannot be opened");
  struct stat status {};
  if (fstat(file.get(), &status) != 0) return SystemFailure("The file cannot be read");
  if (S_ISDIR(status.st_mode)) return Failure(ErrorCode::kIo, "The file is a directory.");
  if (!S_ISREG(status.st_mode)) return Failure(ErrorCode::kIo, "The file is not a regular file.");
  const auto size = static_cast<std::size_t>(status.st_size);
  if (size > most) return Failure(ErrorCode::kTooLarge, "The file is too large.");

  ByteBuffer bytes;
  try {
    bytes.resize(size);
  } catch (const std::bad_alloc&) {
    return Failure(ErrorCode::kTooLarge, "There is not enough memory to read the file.");
  }
  std::size_t done = 0;
  while (done < size) {
    const ssize_t got = read(file.get(), bytes.data() + done, size - done);
    if (got < 0 && errno == EINTR) continue;
    if (got < 0) return SystemFailure("The file cannot be read");
    if (got == 0) break;
    done += static_cast<std::size_t>(got);
  }
  bytes.resize(done);
  return bytes;
}

Result<void> WriteFile(const fs::path& path,
                       std::span<const std::span<const std::uint8_t>> pieces) {
  const fs::path target = FollowLinks(path);
  struct stat old {};
  const bool replaces = stat(target.c_str(), &old) == 0;
  if (!replaces && errno != ENOENT) return SystemFailure("The file cannot be written");
  if (replaces && S_ISDIR(old.st_mode)) return Failure(ErrorCode::kIo, "The file is a directory.");
  if (replaces && !S_ISREG(old.st_mode))
    return Failure(ErrorCode::kIo, "The file is not a regular file.");
  if (replaces && access(target.c_str(), W_OK) != 0)
    return SystemFailure("The file cannot be written");

  // Without the set-user-ID bit: the new file is the saver's own, whoever the old one belonged to.
  const mode_t permissions = replaces ? old.st_mode & 0777 : 0666;
  TemporaryFile file(target, permissions);
  if (file.descriptor() < 0) return SystemFailure("The file cannot be written");
  if (!WriteAll(file.descriptor(), pieces)) return SystemFailure("The file cannot be written");
  if (replaces && fchmod(file.descriptor(), permissions) != 0) {
    return SystemFailure("The file cannot be written");
  }
  // Without this a power failure soon after the renaming could lose the old file and the new one,
  // or leave a new one without its contents.
  if (fdatasync(file.descriptor()) != 0) return SystemFailure("The file cannot be written");
  if (!file.Replace(target)) return SystemFailure("The file cannot be written");
  return {};
}

Result<void> WriteFile(const fs::path& path, std::span<const std::uint8_t> bytes) {
  return WriteFile(path, std::span<const std::span<const std::uint8_t>>(&bytes, 1));
}

}  // namespace plenovia
