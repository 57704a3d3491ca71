#include "codec/bmp.h"

#include <algorithm>
#include <array>
#include <bit>
#include <utility>
#include <vector>

#include "codec/packed_bits.h"
#include "codec/reduce_rows.h"
#include "platform/limits.h"
#include "platform/little_endian.h"

namespace plenovia {

namespace {

using Bytes = std::span<const std::uint8_t>;

enum class BmpCompression { kNone, kRunLength8, kRunLength4 };

// What stands before the pixels.
struct BmpHeader {
  int width = 0;
  int height = 0;
  bool topDown = false;
  int bits = 0;  // a pixel: 1, 2, 4, 8, 16, 24 or 32
  BmpCompression compression = BmpCompression::kNone;
  std::array<std::uint32_t, 3> masks{};  // red, green and blue of 16- and 32-bit pixels
  Palette palette;                       // of at most 8 bits
  std::size_t pixelOffset = 0;           // within the file

  // Without padding, and with it.
  std::size_t RowBytes() const { return PackedBytes(static_cast<std::size_t>(width), bits); }
  std::size_t Stride() const { return (RowBytes() + 3) / 4 * 4; }
};

constexpr std::uint32_t kFileHeader = 14;
constexpr std::size_t kCoreHeader = 12;
constexpr std::uint32_t kInfoHeader = 40;
constexpr std::size_t kMasksHeader = 52;  // the first that contains the colour masks
constexpr std::size_t kShortestOs2 = 16;  // the later system's header may be cut off anywhere
constexpr std::size_t kLongestOs2 = 64;
constexpr std::size_t kLongestHeader = 124;

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
    return Failure(ErrorCode::kUnsupported, "This kind of BMP compression is not supported.");
  }
  if (bits != 1 && bits != 2 && bits != 4 && bits != 8 && bits != 24 && !wide) {
    return Failure(ErrorCode::kCorrupt, "The file is damaged: its pixels have no proper size.");
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

// Whether `there` bytes of pixels are enough to begin with. The best that run-length encoding does
// is 255 pixels in 2 bytes.
bool EnoughBytes(const BmpHeader& header, std::size_t there) {
  const std::size_t claimed = header.RowBytes() * static_cast<std::size_t>(header.height);
  return WorthReading(claimed, header.compression == BmpCompression::kNone ? there : 128 * there);
}

// Checks all that the header says, also that its pixels have some bytes.
Result<BmpHeader> ParseBmpHeader(Bytes bytes) {
  if (bytes.size() < kFileHeader + 4) return Truncated();
  const std::size_t headerSize = Get32(bytes, kFileHeader);
  const bool core = headerSize == kCoreHeader;
  if (!core && (headerSize < kShortestOs2 || headerSize > kLongestHeader)) {
    return Failure(ErrorCode::kUnsupported, "This kind of BMP header is not supported.");
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

  // The palette ends where the pixels begin, also when a greater length is given. An offset that
  // points into the headers is wrong: then the pixels follow the palette.
  const std::size_t entryBytes = core ? 3 : 4;
  const std::size_t most = header.bits <= 8 ? std::size_t{1} << header.bits : 0;
  const std::size_t said = core || field(32, 4) == 0 ? most : field(32, 4);
  header.pixelOffset = Get32(bytes, 10);
  if (header.pixelOffset < headersEnd) header.pixelOffset = headersEnd + said * entryBytes;
  if (header.pixelOffset > bytes.size() ||
      !EnoughBytes(header, bytes.size() - header.pixelOffset)) {
    return Truncated();
  }
  if (header.bits <= 8) {
    const std::size_t room = (header.pixelOffset - headersEnd) / entryBytes;
    header.palette = ReadPalette(bytes.subspan(headersEnd), entryBytes,
                                 std::min({said, most, room}), header.bits);
  }
  return header;
}

// Turns pixels of 16, 24 or 32 bits into colours.
class BmpColourRows {
 public:
  // `masks` tell where red, green and blue lie in pixels of 16 and 32 bits.
  BmpColourRows(int bits, const std::array<std::uint32_t, 3>& masks);

  // `row` holds at least the bytes of colours.size() pixels.
  void Read(std::span<const std::uint8_t> row, std::span<Rgb> colours) const;

 private:
  // Where one part of the colour lies; of more than 8 bits only the upper 8 count.
  struct Part {
    explicit Part(std::uint32_t mask);
    std::uint8_t Of(std::uint32_t pixel) const { return levels[(pixel & mask) >> shift]; }
    std::uint32_t mask;
    int shift = 0;
    std::array<std::uint8_t, 256> levels{};
  };

  int bits_;
  Part red_, green_, blue_;
};

BmpColourRows::Part::Part(std::uint32_t wholeMask) : mask(wholeMask) {
  if (mask == 0) return;
  shift = std::countr_zero(mask);
  const int width = 32 - std::countl_zero(mask) - shift;
  if (width > 8) {
    shift += width - 8;
    mask = mask >> shift << shift;
  }
  const std::uint32_t largest = mask >> shift;
  for (std::uint32_t i = 0; i <= largest; ++i) {
    levels[i] = static_cast<std::uint8_t>((i * 255 + largest / 2) / largest);
  }
}

BmpColourRows::BmpColourRows(int bits, const std::array<std::uint32_t, 3>& masks)
    : bits_(bits), red_(masks[0]), green_(masks[1]), blue_(masks[2]) {}

void BmpColourRows::Read(std::span<const std::uint8_t> row, std::span<Rgb> colours) const {
  std::size_t at = 0;
  for (Rgb& colour : colours) {
    if (bits_ == 24) {
      colour = {row[at + 2], row[at + 1], row[at]};
      at += 3;
      continue;
    }
    const std::uint32_t pixel = bits_ == 16 ? Get16(row, at) : Get32(row, at);
    colour = {red_.Of(pixel), green_.Of(pixel), blue_.Of(pixel)};
    at += bits_ == 16 ? 2 : 4;
  }
}

// The place where the next pixels go.
class Cursor {
 public:
  Cursor(IndexedImage& image, bool topDown) : image_(image), topDown_(topDown) {}

  bool AllRowsDone() const { return line_ >= image_.height(); }
  bool AllPixelsDone() const {
    return AllRowsDone() || (line_ == image_.height() - 1 && x_ >= Width());
  }
  void NextLine() {
    x_ = 0;
    ++line_;
  }
  void Jump(std::size_t right, int lines) {
    x_ = std::min(x_ + right, Width());
    line_ += lines;
  }
  // The next `count` pixels of this row or as many as there are left in it.
  std::span<std::uint8_t> Take(std::size_t count) {
    const auto row = topDown_ ? image_.Row(line_) : image_.ScanLine(line_);
    const auto taken = row.subspan(x_, std::min(count, Width() - x_));
    x_ += taken.size();
    return taken;
  }

 private:
  std::size_t Width() const { return static_cast<std::size_t>(image_.width()); }

  IndexedImage& image_;
  bool topDown_;
  std::size_t x_ = 0;
  int line_ = 0;
};

void FillRun(std::uint8_t value, int bits, std::span<std::uint8_t> pixels) {
  if (bits == 8) {
    std::fill(pixels.begin(), pixels.end(), value);
    return;
  }
  const std::array<std::uint8_t, 2> turns = {static_cast<std::uint8_t>(value >> 4),
                                             static_cast<std::uint8_t>(value & 15)};
  for (std::size_t i = 0; i < pixels.size(); ++i) pixels[i] = turns[i % 2];
}

// Fills the picture, index 0 where the codes leave pixels out; false when they end too early.
// `bits` is 4 or 8.
bool DecodeRunLength(Bytes encoded, int bits, bool topDown, IndexedImage& image) {
  enum : std::uint8_t { kEndOfLine = 0, kEndOfPicture = 1, kJump = 2 };
  image.Fill(0);
  Cursor cursor(image, topDown);
  std::size_t at = 0;
  while (!cursor.AllRowsDone() && encoded.size() - at >= 2) {
    const std::uint8_t count = encoded[at];
    const std::uint8_t value = encoded[at + 1];
    at += 2;
    const auto rest = encoded.subspan(at);
    if (count > 0) {
      FillRun(value, bits, cursor.Take(count));
    } else if (value == kEndOfPicture) {
      return true;
    } else if (value == kEndOfLine) {
      cursor.NextLine();
    } else if (value == kJump) {
      if (rest.size() < 2) break;
      cursor.Jump(rest[0], rest[1]);
      at += 2;
    } else {
      const std::size_t bytes = PackedBytes(value, bits);
      if (rest.size() < bytes) break;
      UnpackBits(rest, bits, cursor.Take(value));
      at += std::min(rest.size(), (bytes + 1) / 2 * 2);
    }
  }
  return cursor.AllPixelsDone();
}

// The rows of a picture that is not compressed, counted from the top.
class PlainRows {
 public:
  PlainRows(const BmpHeader& header, Bytes pixels) : header_(header), pixels_(pixels) {}
  // Empty when the file lacks the row.
  Bytes operator()(int y) const {
    const auto place = static_cast<std::size_t>(header_.topDown ? y : header_.height - 1 - y);
    const std::size_t at = place * header_.Stride();
    const std::size_t end = at + header_.RowBytes();
    return end <= pixels_.size() ? pixels_.subspan(at, end - at) : Bytes();
  }

 private:
  const BmpHeader& header_;
  Bytes pixels_;
};

Result<DecodedPicture> DecodeIndexed(const BmpHeader& header, Bytes pixels) {
  auto image = IndexedImage::Create(header.width, header.height, header.palette);
  if (!image) return tl::unexpected(image.error());
  if (header.compression != BmpCompression::kNone) {
    const bool whole = DecodeRunLength(pixels, header.bits, header.topDown, *image);
    return DecodedPicture(std::move(*image), whole ? "" : kTruncated);
  }
  const PlainRows rows(header, pixels);
  int missing = 0;
  for (int y = 0; y < header.height; ++y) {
    const Bytes row = rows(y);
    if (!row.empty()) {
      UnpackBits(row, header.bits, image->Row(y));
    } else {
      std::fill(image->Row(y).begin(), image->Row(y).end(), std::uint8_t{0});
      ++missing;
    }
  }
  if (missing == header.height) return Truncated();
  return DecodedPicture(std::move(*image), missing > 0 ? kTruncated : "");
}

Result<DecodedPicture> DecodeTrueColour(const BmpHeader& header, Bytes pixels) {
  const PlainRows rows(header, pixels);
  const BmpColourRows colourRows(header.bits, header.masks);
  return ReduceRows(header.width, header.height, [&](int y, std::span<Rgb> colours) {
    const Bytes row = rows(y);
    if (!row.empty()) colourRows.Read(row, colours);
    return !row.empty();
  });
}

constexpr std::uint32_t kPixelsPerMetre = 2835;  // 72 to the inch

}  // namespace

bool LooksLikeBmp(Bytes bytes) {
  return bytes.size() >= 2 && bytes[0] == 'B' && bytes[1] == 'M';
}

Result<DecodedPicture> DecodeBmp(Bytes bytes) {
  if (!LooksLikeBmp(bytes)) return Failure(ErrorCode::kCorrupt, "The file is not a BMP file.");
  const auto header = ParseBmpHeader(bytes);
  if (!header) return tl::unexpected(header.error());
  const Bytes pixels = bytes.subspan(header->pixelOffset);
  return header->bits <= 8 ? DecodeIndexed(*header, pixels) : DecodeTrueColour(*header, pixels);
}

Result<EncodedPicture> EncodeBmp(const IndexedImage& picture) {
  if (auto fits = CheckPictureSize(picture.width(), picture.height()); !fits) {
    return tl::unexpected(fits.error());
  }
  const auto width = static_cast<std::uint32_t>(picture.width());
  const auto height = static_cast<std::uint32_t>(picture.height());
  const auto colours = static_cast<std::uint32_t>(picture.palette().size());
  const std::uint32_t stride = (width + 3) / 4 * 4;
  const std::uint32_t pixelOffset = kFileHeader + kInfoHeader + 4 * colours;

  ByteBuffer head = {'B', 'M'};
  Put32(head, pixelOffset + stride * height);
  Put32(head, 0);
  Put32(head, pixelOffset);
  Put32(head, kInfoHeader);
  Put32(head, width);
  Put32(head, height);
  Put16(head, 1);  // planes
  Put16(head, 8);  // bits a pixel
  Put32(head, 0);  // not compressed
  Put32(head, stride * height);
  Put32(head, kPixelsPerMetre);
  Put32(head, kPixelsPerMetre);
  Put32(head, colours);
  Put32(head, 0);  // all colours matter
  for (const Rgb colour : picture.palette().entries()) {
    head.insert(head.end(), {colour.blue, colour.green, colour.red, 0});
  }

  static constexpr std::array<std::uint8_t, 3> kPadding{};
  const Bytes padding = Bytes(kPadding).first(stride - width);
  std::vector<EncodedPicture::Piece> pieces = {Bytes(head)};
  pieces.reserve(1 + 2 * static_cast<std::size_t>(height));
  for (int n = 0; n < picture.height(); ++n) {
    pieces.push_back(picture.ScanLine(n));
    if (!padding.empty()) pieces.push_back(padding);
  }
  return EncodedPicture(std::move(head), std::move(pieces));
}

}  // namespace plenovia
