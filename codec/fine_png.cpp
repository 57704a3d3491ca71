#include "codec/fine_png.h"

#include <algorithm>
#include <cstddef>

#include "codec/png.h"
#include "codec/png_reader.h"
#include "codec/png_writer.h"

namespace plenovia {

namespace {

// Where the header names its bits and its colours, behind the signature and the size.
constexpr std::size_t kBitsAt = 24;
constexpr std::size_t kColoursAt = 25;

}  // namespace

bool LooksLikeFinePng(std::span<const std::uint8_t> bytes) {
  return LooksLikePng(bytes) && bytes.size() > kColoursAt && bytes[kBitsAt] == 16 &&
         (bytes[kColoursAt] == PNG_COLOR_TYPE_GRAY ||
          bytes[kColoursAt] == PNG_COLOR_TYPE_GRAY_ALPHA);
}

Result<DecodedFineImage> DecodeFinePng(std::span<const std::uint8_t> bytes) {
  PngReader file(bytes, PngReader::Samples::kFineGrays);
  if (auto opened = file.Open(); !opened) return tl::unexpected(opened.error());
  auto image = FineImage::Create(file.width(), file.height());
  if (!image) return tl::unexpected(image.error());
  std::ranges::fill(image->pixels(), std::uint16_t{0});
  const auto read = file.ReadRows([&](const PngRowPlace& place, std::span<const std::uint8_t> row) {
    const auto to = image->Row(place.y);
    auto x = static_cast<std::size_t>(place.left);
    for (std::size_t i = 0; i + 1 < row.size(); i += 2, x += static_cast<std::size_t>(place.step)) {
      to[x] = static_cast<std::uint16_t>(row[i] << 8 | row[i + 1]);
    }
  });
  if (!read) return tl::unexpected(read.error());
  return DecodedFineImage{std::move(*image), file.Damage()};
}

Result<EncodedPicture> EncodeFinePng(const FineImage& image) {
  if (image.empty()) return Failure(ErrorCode::kInvalid, "There is no picture to write.");
  ByteBuffer row(static_cast<std::size_t>(image.width()) * 2);
  return WritePng([&](png_structp png, png_infop info) {
    png_set_compression_level(png, 1);
    png_set_IHDR(png, info, static_cast<png_uint_32>(image.width()),
                 static_cast<png_uint_32>(image.height()), 16, PNG_COLOR_TYPE_GRAY,
                 PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    png_write_info(png, info);
    for (int y = 0; y < image.height(); ++y) {
      const std::uint16_t* const pixels = image.Row(y).data();
      for (std::size_t x = 0; x < row.size() / 2; ++x) {
        row[2 * x] = static_cast<std::uint8_t>(pixels[x] >> 8);
        row[2 * x + 1] = static_cast<std::uint8_t>(pixels[x] & 255);
      }
      png_write_row(png, row.data());
    }
    png_write_end(png, info);
  });
}

}  // namespace plenovia
