// Whole files in and out.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <span>

#include "platform/limits.h"
#include "platform/pixel_buffer.h"
#include "platform/result.h"

namespace plenovia {

// The bytes of a file, at most `most`. A missing file, a directory or a longer file is an error.
[[nodiscard]] Result<ByteBuffer> ReadFile(const std::filesystem::path& path,
                                          std::size_t most = kMaxFileBytes);

// Puts the pieces, one after the other, into the file: under a temporary name beside it, flushed
// and renamed. On failure the file that was there stays as it was and nothing is left behind.
// A symbolic link is followed; an existing file keeps its permissions. Under a limit on file sizes
// SIGXFSZ must be ignored for the limit to be a failure.
[[nodiscard]] Result<void> WriteFile(const std::filesystem::path& path,
                                     std::span<const std::span<const std::uint8_t>> pieces);
[[nodiscard]] Result<void> WriteFile(const std::filesystem::path& path,
                                     std::span<const std::uint8_t> bytes);

}  // namespace plenovia
