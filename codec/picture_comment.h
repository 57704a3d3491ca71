// The program's own text among the comments of a picture file.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace plenovia {

inline constexpr std::string_view kCommentMark = "Plenovia ";  // a comment of the program begins so
inline constexpr std::size_t kLongestComment = 8192;           // bytes of one that are read

inline bool IsOwnComment(std::string_view comment) {
  return comment.starts_with(kCommentMark);
}

// The first comment of the program in a PNG file (a text chunk with the right checksum) or a JPEG
// file (a comment before the pixels), cut at kLongestComment. Empty when there is none as far as
// the file is in order.
std::string FindPngComment(std::span<const std::uint8_t> file);
std::string FindJpegComment(std::span<const std::uint8_t> file);

}  // namespace plenovia
