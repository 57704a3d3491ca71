#include "codec/pcx.h"

#include <algorithm>
#include <array>
#include <new>
#include <utility>
#include <vector>

#include "codec/packed_bits.h"
#include "codec/pcx_header.h"
#include "codec/pcx_lines.h"
#include "codec/pcx_palette.h"
#include "codec/reduce_rows.h"
#include "platform/limits.h"
#include "platform/little_endian.h"

namespace plenovia {

namespace {

using Bytes = std::span<const std::uint8_t>;

constexpr std::uint8_t kMaker = 0x0a;

tl::unexpected<Error> Truncated() {
  return Failure(ErrorCode::kCorrupt, "the file is truncated");
}

// The rows of a picture, first to last, plane by plane as one byte a pixel.
class PlaneRows {
 public:
  PlaneRows(const PcxHeader& header, Bytes bytes)
      : header_(header),
        start_(bytes.subspan(kPcxHeaderBytes), header.runLength),
        reader_(start_),
        line_(header.LineBytes()) {}

  void Restart() { reader_ = start_; }
  [[nodiscard]] bool Next() { return reader_.Read(line_); }
  // The place in the file behind the rows that were read.
  std::size_t End() const { return kPcxHeaderBytes + reader_.Position(); }

  // The row's values in one plane.
  void Unpack(int plane, std::span<std::uint8_t> values) const {
    const auto start = static_cast<std::size_t>(plane) * header_.planeBytes;
    UnpackBits(Bytes(line_).subspan(start), header_.bits, values);
  }

 private:
  const PcxHeader& header_;
  const PcxLineReader start_;
  PcxLineReader reader_;
  std::vector<std::uint8_t> line_;
};

Result<IndexedImage> DecodeIndexed(const PcxHeader& header, Bytes bytes) {
  auto image = IndexedImage::Create(header.width, header.height, Palette());
  if (!image) return image;
  PlaneRows rows(header, bytes);
  std::vector<std::uint8_t> values(static_cast<std::size_t>(header.width));
  for (int y = 0; y < header.height; ++y) {
    if (!rows.Next()) return Truncated();
    const auto row = image->Row(y);
    rows.Unpack(0, row);
    for (int bit = header.bits; bit < header.IndexBits(); bit += header.bits) {
      rows.Unpack(bit / header.bits, values);
      for (std::size_t x = 0; x < row.size(); ++x) {
        row[x] = static_cast<std::uint8_t>(row[x] | values[x] << bit);
      }
    }
  }
  const auto palette = ReadPcxPalette(header, bytes, rows.End());
  if (!palette) return tl::unexpected(palette.error());
  image->SetPalette(*palette);
  return image;
}

Result<IndexedImage> DecodeTrueColour(const PcxHeader& header, Bytes bytes) {
  const auto width = static_cast<std::size_t>(header.width);
  const int step = 255 / ((1 << header.bits) - 1);  // between two levels of 2, 4 or 8 bits
  std::array<std::vector<std::uint8_t>, 3> parts;
  parts.fill(std::vector<std::uint8_t>(width));
  PlaneRows rows(header, bytes);
  return ReduceRows(header.width, header.height, [&](int y, std::span<Rgb> colours) {
    if (y == 0) rows.Restart();
    if (!rows.Next()) return false;
    for (int plane = 0; plane < 3; ++plane) {
      auto& values = parts[static_cast<std::size_t>(plane)];
      rows.Unpack(plane, values);
      for (auto& value : values) value = static_cast<std::uint8_t>(value * step);
    }
    for (std::size_t x = 0; x < width; ++x) colours[x] = {parts[0][x], parts[1][x], parts[2][x]};
    return true;
  });
}

void PutHeader(const IndexedImage& picture, std::uint32_t lineBytes, ByteBuffer& file) {
  constexpr std::uint32_t kDotsPerInch = 72;
  file.insert(file.end(), {kMaker, 5, 1, 8});  // version, run-length encoding, bits a pixel
  Put32(file, 0);                              // the upper left corner
  Put16(file, static_cast<std::uint32_t>(picture.width() - 1));
  Put16(file, static_cast<std::uint32_t>(picture.height() - 1));
  Put16(file, kDotsPerInch);
  Put16(file, kDotsPerInch);
  file.resize(file.size() + 48);  // the place of a palette of 16 colours
  std::fill(file.end() - 48, file.end(), std::uint8_t{0});
  file.insert(file.end(), {0, 1});  // one plane
  Put16(file, lineBytes);
  Put16(file, 1);  // the palette is meant as colours
  file.insert(file.end(), kPcxHeaderBytes - file.size(), 0);
}

}  // namespace

bool LooksLikePcx(Bytes bytes) {
  if (bytes.size() < 4 || bytes[0] != kMaker) return false;
  const int version = bytes[1];
  const int bits = bytes[3];
  return version <= 5 && version != 1 && bytes[2] <= 1 &&
         (bits == 1 || bits == 2 || bits == 4 || bits == 8);
}

Result<IndexedImage> DecodePcx(Bytes bytes) {
  if (!LooksLikePcx(bytes)) return Failure(ErrorCode::kCorrupt, "the file is not a PCX");
  const auto header = ParsePcxHeader(bytes);
  if (!header) return tl::unexpected(header.error());
  return header->TrueColour() ? DecodeTrueColour(*header, bytes) : DecodeIndexed(*header, bytes);
}

Result<EncodedPicture> EncodePcx(const IndexedImage& picture) {
  if (auto fits = CheckPictureSize(picture.width(), picture.height()); !fits) {
    return tl::unexpected(fits.error());
  }
  const auto width = static_cast<std::size_t>(picture.width());
  const std::size_t lineBytes = (width + 1) / 2 * 2;
  const std::size_t mostPixelBytes = 2 * lineBytes * static_cast<std::size_t>(picture.height());
  ByteBuffer file;
  try {
    file.reserve(kPcxHeaderBytes + mostPixelBytes + kPcxPaletteBytes);
  } catch (const std::bad_alloc&) {
    return Failure(ErrorCode::kTooLarge, "there is not enough memory to write the picture");
  }
  PutHeader(picture, static_cast<std::uint32_t>(lineBytes), file);

  std::size_t end = file.size();
  file.resize(end + mostPixelBytes);  // what is not written takes no memory
  for (int y = 0; y < picture.height(); ++y) {
    end += EncodePcxLine(picture.Row(y), file.data() + end);
    if (lineBytes > width) file[end++] = 0;
  }
  file.resize(end);
  file.push_back(kPcxPaletteMark);
  const Palette palette = picture.palette().Widened();
  for (const Rgb colour : palette.entries()) {
    file.insert(file.end(), {colour.red, colour.green, colour.blue});
  }
  return EncodedPicture(std::move(file));
}

}  // namespace plenovia
