#include "codec/graph_io.h"

#include <cstdio>
// The JPEG library's header needs <cstdio>.
#include <gif_lib.h>
#include <jpeglib.h>
#include <png.h>

#include <new>

#include "codec/bmp.h"
#include "codec/gif.h"
#include "codec/jpeg.h"
#include "codec/pcx.h"
#include "codec/png.h"
#include "platform/file_io.h"

namespace plenovia {

namespace {

struct Codec {
  GraphicFormat format;
  bool (*looksLike)(std::span<const std::uint8_t>);
  Result<IndexedImage> (*decode)(std::span<const std::uint8_t>);
  Result<EncodedPicture> (*encode)(const IndexedImage&);
};

// Those with the longest marks first.
constexpr Codec kCodecs[] = {
    {GraphicFormat::kPng, LooksLikePng, DecodePng, EncodePng},
    {GraphicFormat::kGif, LooksLikeGif, DecodeGif, EncodeGif},
    {GraphicFormat::kJpeg, LooksLikeJpeg, DecodeJpeg, EncodeJpeg},
    {GraphicFormat::kBmp, LooksLikeBmp, DecodeBmp, EncodeBmp},
    {GraphicFormat::kPcx, LooksLikePcx, DecodePcx, EncodePcx},
};

const Codec* Find(std::span<const std::uint8_t> bytes) {
  for (const Codec& codec : kCodecs) {
    if (codec.looksLike(bytes)) return &codec;
  }
  return nullptr;
}

}  // namespace

GraphicFormat DetectFormat(std::span<const std::uint8_t> bytes) {
  const Codec* codec = Find(bytes);
  return codec == nullptr ? GraphicFormat::kUnknown : codec->format;
}

Result<IndexedImage> DecodePicture(std::span<const std::uint8_t> bytes) {
  const Codec* codec = Find(bytes);
  if (codec == nullptr) {
    return Failure(ErrorCode::kUnsupported, "is not a picture file of a known format");
  }
  try {
    return codec->decode(bytes);
  } catch (const std::bad_alloc&) {
    return Failure(ErrorCode::kTooLarge, "there is not enough memory to read the picture");
  }
}

Result<EncodedPicture> EncodePicture(GraphicFormat format, const IndexedImage& picture) {
  try {
    for (const Codec& codec : kCodecs) {
      if (codec.format == format) return codec.encode(picture);
    }
  } catch (const std::bad_alloc&) {
    return Failure(ErrorCode::kTooLarge, "there is not enough memory to write the picture");
  }
  return Failure(ErrorCode::kUnsupported, format == GraphicFormat::kDepthMap
                                              ? "a picture cannot be written as a depth map"
                                              : "there is no picture format of this number");
}

int TGraphIO::GetGraphicFormat(const std::filesystem::path& path) {
  const auto bytes = ReadFile(path);
  return static_cast<int>(bytes ? DetectFormat(*bytes) : GraphicFormat::kUnknown);
}

Result<IndexedImage> TGraphIO::Read_File(const std::filesystem::path& path) {
  const auto bytes = ReadFile(path);
  if (!bytes) return tl::unexpected(bytes.error());
  auto picture = DecodePicture(*bytes);
  if (picture) palette_ = picture->palette();
  return picture;
}

Result<void> TGraphIO::Write_File(const std::filesystem::path& path,
                                  const IndexedImage& picture) const {
  const auto encoded = EncodePicture(static_cast<GraphicFormat>(format_), picture);
  if (!encoded) return tl::unexpected(encoded.error());
  return WriteFile(path, encoded->pieces());
}

BitmapInfo TGraphIO::GetBitmapInfo(const IndexedImage& picture) {
  BitmapInfo info;
  info.width = picture.width();
  info.height = picture.height();
  info.bitsPerPixel = 1;
  while ((1 << info.bitsPerPixel) < picture.palette().size()) info.bitsPerPixel *= 2;
  info.bytesPerRow = (picture.width() * info.bitsPerPixel + 31) / 32 * 4;
  return info;
}

std::string TGraphIO::GetVersionString() {
#define PLENOVIA_TEXT_OF(number) #number
#define PLENOVIA_TEXT(number) PLENOVIA_TEXT_OF(number)
  return "BMP and PCX: built in\n"
         "GIF: giflib " PLENOVIA_TEXT(GIFLIB_MAJOR) "." PLENOVIA_TEXT(GIFLIB_MINOR) "." PLENOVIA_TEXT(
             GIFLIB_RELEASE) "\n"
         "JPEG: libjpeg-turbo " PLENOVIA_TEXT(LIBJPEG_TURBO_VERSION) "\n"
         "PNG: libpng " PNG_LIBPNG_VER_STRING;
#undef PLENOVIA_TEXT
#undef PLENOVIA_TEXT_OF
}

}  // namespace plenovia
