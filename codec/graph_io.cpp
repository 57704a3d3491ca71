#include "codec/graph_io.h"

#include <new>

#include "platform/file_io.h"

namespace plenovia {

Result<DecodedPicture> DecodePicture(std::span<const std::uint8_t> bytes, int threads) {
  const PictureFormat* format = FindFormat(DetectFormat(bytes));
  if (format == nullptr) {
    return Failure(ErrorCode::kUnsupported, "The file is not a picture of a known format.");
  }
  try {
    return format->decode(bytes, threads);
  } catch (const std::bad_alloc&) {
    return Failure(ErrorCode::kTooLarge, "There is not enough memory to read the picture.");
  }
}

Result<EncodedPicture> EncodePicture(GraphicFormat number, const IndexedImage& picture, int threads,
                                     std::string_view comment) {
  const PictureFormat* format = FindFormat(number);
  if (format == nullptr) {
    return Failure(ErrorCode::kUnsupported, "There is no picture format of this number.");
  }
  if (format->encode == nullptr) {
    return Failure(ErrorCode::kUnsupported,
                   number == GraphicFormat::kDepthMap
                       ? "A picture cannot be written as a depth map."
                       : std::string(format->name) + " files are only read, not written.");
  }
  try {
    return format->encode(picture, threads, comment);
  } catch (const std::bad_alloc&) {
    return Failure(ErrorCode::kTooLarge, "There is not enough memory to write the picture.");
  }
}

int TGraphIO::GetGraphicFormat(const std::filesystem::path& path) {
  const auto bytes = ReadFile(path);
  return static_cast<int>(bytes ? DetectFormat(*bytes) : GraphicFormat::kUnknown);
}

Result<DecodedPicture> TGraphIO::Read_File(const std::filesystem::path& path) {
  const auto bytes = ReadFile(path);
  if (!bytes) return tl::unexpected(bytes.error());
  auto picture = DecodePicture(*bytes);
  if (picture) palette_ = picture->palette();
  return picture;
}

Result<void> TGraphIO::Write_File(const std::filesystem::path& path, const IndexedImage& picture,
                                  std::string_view comment) const {
  const auto encoded = EncodePicture(static_cast<GraphicFormat>(format_), picture, 0, comment);
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
  std::string lines = "BMP and PCX: built in";
  for (const PictureFormat& format : PictureFormats()) {
    if (format.library == nullptr) continue;
    lines.append("\n").append(format.name).append(": ").append(format.library());
  }
  return lines;
}

}  // namespace plenovia
