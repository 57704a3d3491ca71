#include "codec/bmp_header.h"

#include <algorithm>

#include "codec/packed_bits.h"
#include "platform/limits.h"
#include "platform/little_endian.h"

namespace plenovia {

namespace {

using Bytes = std::span<const std::uint8_t>;

constexpr std::size_t kFileHeader = 14;
constexpr std::size_t kCoreHeader = 12;
constexpr std::size_t kInfoHeader = 40;
constexpr std::size_t kMasksHeader = 52;  // the first that contains the colour masks
constexpr std::size_t kShortestOs2 = 16;  // the later system's header may be cut off anywhere
constexpr std::size_t kLongestOs2 = 64;
constexpr std::size_t kLongestHeader = 124;

tl::unexpected<Error> Truncated() {
  return Failure(ErrorCode::kCorrupt, "the file is truncated");
}

// The fields of the second header as they stand in the file; those that it lacks are 0.
class Fields {
 public:
  explicit Fields(Bytes header) : header_(header) {}
  std::uint32_t operator()(std::size_t at, std::size_t bytes) const {
    if (at + bytes > header_.size()) return 0;
    return bytes == 2 ? Get16(header_, at) : Get32(header_, at);
  }

 private:
  Bytes header_;
};

Result<void> SetSize(const Fields& field, bool core, BmpHeader& header) {
  std::int64_t width = field(4, 2);
  std::int64_t height = field(6, 2);
  if (!core) {
    width = static_cast<std::int32_t>(field(4, 4));
    height = static_cast<std::int32_t>(field(8, 4));
  }
  header.topDown = height < 0;
  if (header.topDown) height = -height;
  if (auto fits = CheckPictureSize(width, height); !fits) return fits;
  header.width = static_cast<int>(width);
  header.height = static_cast<int>(height);
  return {};
}

// The compression codes in the file.
enum : std::uint32_t { kPlain = 0, kRle8 = 1, kRle4 = 2, kBitFields = 3, kAlphaBitFields = 6 };

Result<void> SetCompression(std::uint32_t code, bool os2, BmpHeader& header) {
  const int bits = header.bits;
  const bool wide = bits == 16 || bits == 32;
  // In the other system's header these two codes mean other methods.
  const bool fields = !os2 && (code == kBitFields || code == kAlphaBitFields);
  if (code == kRle8 && bits == 8) {
    header.compression = BmpCompression::kRunLength8;
  } else if (code == kRle4 && bits == 4) {
    header.compression = BmpCompression::kRunLength4;
  } else if (code != kPlain && !(fields && wide)) {
    return Failure(ErrorCode::kUnsupported, "this kind of BMP compression is not supported");
  }
  if (bits != 1 && bits != 2 && bits != 4 && bits != 8 && bits != 24 && !wide) {
    return Failure(ErrorCode::kCorrupt, "the file is damaged: its pixels have no proper size");
  }
  return {};
}

Palette ReadPalette(Bytes bytes, std::size_t entryBytes, std::size_t count, int bits) {
  if (count == 0) return Palette::Grays(1 << bits);
  std::array<Rgb, 256> colours{};
  for (std::size_t i = 0; i < count; ++i) {
    const std::size_t at = i * entryBytes;
    colours[i] = {bytes[at + 2], bytes[at + 1], bytes[at]};
  }
  return Palette(std::span<const Rgb>(colours.data(), count));
}

// The least number of bytes that the pixels take. The best that run-length encoding does is 255
// pixels in 2 bytes.
std::size_t LeastPixelBytes(const BmpHeader& header) {
  const auto width = static_cast<std::size_t>(header.width);
  const auto height = static_cast<std::size_t>(header.height);
  if (header.compression != BmpCompression::kNone) return (width * height + 254) / 255 * 2;
  return header.Stride() * (height - 1) + header.RowBytes();  // the last padding may be missing
}

}  // namespace

std::size_t BmpHeader::RowBytes() const {
  return PackedBytes(static_cast<std::size_t>(width), bits);
}

std::size_t BmpHeader::Stride() const {
  return (RowBytes() + 3) / 4 * 4;
}

Result<BmpHeader> ParseBmpHeader(Bytes bytes) {
  if (bytes.size() < kFileHeader + 4) return Truncated();
  const std::size_t headerSize = Get32(bytes, kFileHeader);
  const bool core = headerSize == kCoreHeader;
  if (!core && (headerSize < kShortestOs2 || headerSize > kLongestHeader)) {
    return Failure(ErrorCode::kUnsupported, "this kind of BMP header is not supported");
  }
  std::size_t headersEnd = kFileHeader + headerSize;
  if (bytes.size() < headersEnd) return Truncated();
  const Fields field(bytes.subspan(kFileHeader, headerSize));

  BmpHeader header;
  if (auto set = SetSize(field, core, header); !set) return tl::unexpected(set.error());
  header.bits = static_cast<int>(core ? field(10, 2) : field(14, 2));

  const std::uint32_t code = core ? kPlain : field(16, 4);
  const bool os2 = headerSize < kInfoHeader || headerSize == kLongestOs2;
  if (auto set = SetCompression(code, os2, header); !set) return tl::unexpected(set.error());

  if (header.bits > 8 && code != kPlain) {
    const std::size_t at = kFileHeader + kInfoHeader;
    if (headerSize < kMasksHeader) headersEnd = at + (code == kBitFields ? 12 : 16);
    if (bytes.size() < headersEnd) return Truncated();
    header.masks = {Get32(bytes, at), Get32(bytes, at + 4), Get32(bytes, at + 8)};
  } else if (header.bits == 16) {
    header.masks = {0x7c00, 0x03e0, 0x001f};
  } else if (header.bits == 32) {
    header.masks = {0xff0000, 0x00ff00, 0x0000ff};
  }

  // The palette ends where the pixels begin, whatever its length is said to be. An offset that
  // points into the headers is wrong: then the pixels follow the palette.
  const std::size_t entryBytes = core ? 3 : 4;
  const std::size_t most = header.bits <= 8 ? std::size_t{1} << header.bits : 0;
  const std::size_t said = core || field(32, 4) == 0 ? most : field(32, 4);
  header.pixelOffset = Get32(bytes, 10);
  if (header.pixelOffset < headersEnd) header.pixelOffset = headersEnd + said * entryBytes;
  if (header.pixelOffset > bytes.size() ||
      LeastPixelBytes(header) > bytes.size() - header.pixelOffset) {
    return Truncated();
  }
  if (header.bits <= 8) {
    const std::size_t room = (header.pixelOffset - headersEnd) / entryBytes;
    header.palette = ReadPalette(bytes.subspan(headersEnd), entryBytes,
                                 std::min({said, most, room}), header.bits);
  }
  return header;
}

}  // namespace plenovia
