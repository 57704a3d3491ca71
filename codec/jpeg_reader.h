// The rows of a JPEG file, as often as they are wanted.
#pragma once

#include <cstdint>
#include <span>
#include <string>
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

  // What is wrong with the file as far as it was read; empty when nothing is.
  std::string Damage() const;

  // Calls `useRow(y, bytes)` for each row from the top: a byte a pixel of a gray picture, else the
  // bytes of red, green and blue; gray from where the file cannot be read any further. May be
  // called again for another pass over the picture. Fails when there is no row at all.
  template <class UseRow>
  [[nodiscard]] Result<void> ReadRows(const UseRow& useRow) {
    if (auto started = StartPass(); !started) return started;
    bool broken = false;
    for (int y = 0; y < height(); ++y) {
      if (!broken && !ReadRow()) {
        if (y == 0) return tl::unexpected(errors_.LastError());
        broken = true;
        GiveUp();
      }
      useRow(y, std::span<const std::uint8_t>(row_));
    }
    if (!broken) FinishPass();
    return {};
  }

 private:
  static void NothingToDo(j_decompress_ptr) {}
  static boolean NoMoreBytes(j_decompress_ptr info);
  static void Skip(j_decompress_ptr info, long count);

  void ReadHeader();
  [[nodiscard]] Result<void> CheckLimits();
  [[nodiscard]] Result<void> ReadScans();
  [[nodiscard]] Result<void> ReadAllScans();
  [[nodiscard]] Result<void> StartPass();
  bool ReadRow();
  void GiveUp();
  void FinishPass();

  std::span<const std::uint8_t> bytes_;
  JpegErrors errors_;
  jpeg_source_mgr source_{};
  jpeg_decompress_struct info_{};
  bool scansRead_ = false;    // of a file of several scans, into the library's memory
  bool headerFresh_ = false;  // nothing after the header has been read
  std::vector<std::uint8_t> row_;
  std::string damage_;
};

}  // namespace plenovia
