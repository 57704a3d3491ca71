#include "codec/bmp.h"

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

#include "codec/bmp_colour_rows.h"
#include "codec/bmp_header.h"
#include "codec/bmp_run_length.h"
#include "codec/packed_bits.h"
#include "codec/reduce_rows.h"
#include "platform/limits.h"
#include "platform/little_endian.h"

namespace plenovia {

namespace {

using Bytes = std::span<const std::uint8_t>;

// The rows of a picture that is not compressed, counted from the top.
class PlainRows {
 public:
  PlainRows(const BmpHeader& header, Bytes pixels) : header_(header), pixels_(pixels) {}
  Bytes operator()(int y) const {
    const int place = header_.topDown ? y : header_.height - 1 - y;
    return pixels_.subspan(static_cast<std::size_t>(place) * header_.Stride(), header_.RowBytes());
  }

 private:
  const BmpHeader& header_;
  Bytes pixels_;
};

Result<IndexedImage> DecodeIndexed(const BmpHeader& header, Bytes pixels) {
  auto image = IndexedImage::Create(header.width, header.height, header.palette);
  if (!image) return image;
  if (header.compression == BmpCompression::kNone) {
    const PlainRows rows(header, pixels);
    for (int y = 0; y < header.height; ++y) UnpackBits(rows(y), header.bits, image->Row(y));
  } else if (auto done = DecodeBmpRunLength(pixels, header.bits, header.topDown, *image); !done) {
    return tl::unexpected(done.error());
  }
  return image;
}

Result<IndexedImage> DecodeTrueColour(const BmpHeader& header, Bytes pixels) {
  const PlainRows rows(header, pixels);
  const BmpColourRows colourRows(header.bits, header.masks);
  return ReduceRows(header.width, header.height, [&](int y, std::span<Rgb> colours) {
    colourRows.Read(rows(y), colours);
    return true;
  });
}

constexpr std::uint32_t kFileHeader = 14;
constexpr std::uint32_t kInfoHeader = 40;
constexpr std::uint32_t kPixelsPerMetre = 2835;  // 72 to the inch

}  // namespace

bool LooksLikeBmp(Bytes bytes) {
  return bytes.size() >= 2 && bytes[0] == 'B' && bytes[1] == 'M';
}

Result<IndexedImage> DecodeBmp(Bytes bytes) {
  if (!LooksLikeBmp(bytes)) return Failure(ErrorCode::kCorrupt, "the file is not a BMP");
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
