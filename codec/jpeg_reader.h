// The rows of a JPEG file, as often as they are wanted.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "codec/jpeg_errors.h"
#include "platform/palette.h"
#include "platform/result.h"

namespace plenovia {

class JpegReader {
 public:
  explicit JpegReader(std::span<const std::uint8_t> bytes);
  JpegReader(const JpegReader&) = delete;
  JpegReader& operator=(const JpegReader&) = delete;
  ~JpegReader();

  // To be called first, once: reads the header and holds it against all limits.
  [[nodiscard]] Result<void> Open();

  int width() const { return static_cast<int>(info_.image_width); }
  int height() const { return static_cast<int>(info_.image_height); }
  bool gray() const { return info_.out_color_space == JCS_GRAYSCALE; }

  // Calls `useRow(y, bytes)` for each row from the top: a byte a pixel of a gray picture, else the
  // bytes of red, green and blue. May be called again for another pass over the picture.
  template <class UseRow>
  [[nodiscard]] Result<void> ReadRows(const UseRow& useRow) {
    if (auto started = StartPass(); !started) return started;
    for (int y = 0; y < height(); ++y) {
      if (!ReadRow()) return tl::unexpected(errors_.LastError());
      useRow(y, std::span<const std::uint8_t>(row_));
    }
    return FinishPass();
  }

 private:
  static void NothingToDo(j_decompress_ptr) {}
  static boolean NoMoreBytes(j_decompress_ptr info);
  static void Skip(j_decompress_ptr info, long count);

  void ReadHeader();
  [[nodiscard]] Result<void> CheckLimits();
  [[nodiscard]] Result<void> ReadScans();
  [[nodiscard]] Result<void> StartPass();
  bool ReadRow();
  [[nodiscard]] Result<void> FinishPass();

  std::span<const std::uint8_t> bytes_;
  JpegErrors errors_;
  jpeg_source_mgr source_{};
  jpeg_decompress_struct info_{};
  bool scansRead_ = false;    // of a file of several scans, into the library's memory
  bool headerFresh_ = false;  // nothing after the header has been read
  std::vector<std::uint8_t> row_;
};

}  // namespace plenovia
