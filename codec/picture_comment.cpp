#include "codec/picture_comment.h"

#include <zlib.h>

#include <algorithm>

namespace plenovia {

namespace {

using Bytes = std::span<const std::uint8_t>;

std::uint32_t BigEndian(Bytes bytes) {
  std::uint32_t number = 0;
  for (const std::uint8_t byte : bytes) number = number << 8 | byte;
  return number;
}

std::string_view TextOf(Bytes bytes) {
  return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

}  // namespace

std::string FindPngComment(Bytes file) {
  constexpr std::size_t kSignature = 8;
  constexpr std::size_t kWord = 4;  // length, name and checksum of a chunk
  for (Bytes rest = file.subspan(std::min(kSignature, file.size())); rest.size() >= 3 * kWord;) {
    const std::size_t length = BigEndian(rest.first(kWord));
    if (length > rest.size() - 3 * kWord) break;
    const Bytes named = rest.subspan(kWord, kWord + length);
    const std::uint32_t sum = BigEndian(rest.subspan(2 * kWord + length, kWord));
    rest = rest.subspan(3 * kWord + length);
    if (TextOf(named.first(kWord)) != "tEXt") continue;
    std::string_view text = TextOf(named.subspan(kWord));
    text.remove_prefix(text.find('\0') + 1);  // the keyword; npos + 1 is 0
    if (IsOwnComment(text) && crc32_z(0, named.data(), named.size()) == sum) {
      return std::string(text.substr(0, kLongestComment));
    }
  }
  return {};
}

std::string FindJpegComment(Bytes file) {
  constexpr std::uint8_t kComment = 0xfe;
  constexpr std::uint8_t kScan = 0xda;
  for (Bytes rest = file.subspan(std::min<std::size_t>(2, file.size()));
       rest.size() >= 4 && rest[0] == 0xff && rest[1] != kScan;) {
    if (rest[1] == 0xff) {  // a filling byte
      rest = rest.subspan(1);
      continue;
    }
    const std::size_t length = BigEndian(rest.subspan(2, 2));  // with its own two bytes
    if (length < 2 || length > rest.size() - 2) break;
    const std::string_view text = TextOf(rest.subspan(4, length - 2));
    if (rest[1] == kComment && IsOwnComment(text)) {
      return std::string(text.substr(0, kLongestComment));
    }
    rest = rest.subspan(2 + length);
  }
  return {};
}

}  // namespace plenovia
