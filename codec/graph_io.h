// Picture files of every format: the one place that the rest of the program reads and writes by.
#pragma once

#include <cstdint>
#include <filesystem>
#include <span>
#include <string>
#include <string_view>

#include "codec/picture_format.h"
#include "platform/result.h"

namespace plenovia {

// The picture in the bytes of a file of any format. kUnsupported when no reader knows them. At most
// `threads` work on it, here and when it is encoded, or one a processor when that is 0.
[[nodiscard]] Result<DecodedPicture> DecodePicture(std::span<const std::uint8_t> bytes,
                                                   int threads = 0);
// kUnsupported for formats that are not written. `comment` is the program's own
// (codec/picture_comment.h); BMP and PCX files have no place for it.
[[nodiscard]] Result<EncodedPicture> EncodePicture(GraphicFormat format,
                                                   const IndexedImage& picture, int threads = 0,
                                                   std::string_view comment = {});

// A picture as memory without compression would hold it.
struct BitmapInfo {
  int width = 0;
  int height = 0;
  int bytesPerRow = 0;  // a multiple of 4
  int planes = 1;
  int bitsPerPixel = 8;  // 1, 2, 4 or 8: the fewest that tell all colours of the palette apart
};

// One reading or writing of a picture file.
class TGraphIO {
 public:
  // The number of the file's format by its content (GraphicFormat); 0 when it cannot be read or
  // no reader knows it.
  static int GetGraphicFormat(const std::filesystem::path& path);
  // Reads a picture file of any format.
  [[nodiscard]] Result<DecodedPicture> Read_File(const std::filesystem::path& path);
  // Of the picture read last; one black entry before.
  const Palette& GetPalette() const { return palette_; }

  // The format that Write_File() writes under any name; at first 1 (BMP).
  void SetGraphicFormat(int format) { format_ = format; }
  // Fails with kUnsupported for a number that is not that of a picture format. On failure the file
  // that was there stays as it was.
  [[nodiscard]] Result<void> Write_File(const std::filesystem::path& path,
                                        const IndexedImage& picture,
                                        std::string_view comment = {}) const;

  static BitmapInfo GetBitmapInfo(const IndexedImage& picture);
  // The libraries that read and write, a line each.
  static std::string GetVersionString();

 private:
  int format_ = static_cast<int>(GraphicFormat::kBmp);
  Palette palette_;
};

}  // namespace plenovia
