// The rows of a PNG file in the order in which they are stored.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "codec/byte_stream.h"
#include "codec/decoded_picture.h"
#include "codec/png_errors.h"
#include "platform/palette.h"
#include "platform/result.h"

namespace plenovia {

// Where the pixels of a stored row lie in the picture: the first at (left, y), each next one
// `step` further to the right.
struct PngRowPlace {
  int y = 0;
  int left = 0;
  int step = 1;
};

// One pass over a file.
class PngReader {
 public:
  // What rows consist of: 8 bits a channel, which are indexes, gray, gray and alpha, colours, or
  // colours and alpha; or, for gray files of 16 bits only, these, the high byte first.
  enum class Samples { kBytes, kFineGrays };

  explicit PngReader(std::span<const std::uint8_t> bytes, Samples samples = Samples::kBytes);
  PngReader(const PngReader&) = delete;
  PngReader& operator=(const PngReader&) = delete;
  ~PngReader();

  // To be called first, once: reads what stands before the pixels and checks it against all limits.
  [[nodiscard]] Result<void> Open();

  int width() const { return width_; }
  int height() const { return height_; }
  int channels() const { return channels_; }  // 1 to 4
  // The file's palette, or grays.
  Palette palette() const;

  // What is wrong with the file as far as it was read; empty when nothing is.
  std::string Damage() const;

  // Calls `useRow(place, bytes)` for each row of the file, once, as far as it can be read. Fails
  // when that is not a single one.
  template <class UseRow>
  [[nodiscard]] Result<void> ReadRows(const UseRow& useRow) {
    const int passes = interlaced_ ? PNG_INTERLACE_ADAM7_PASSES : 1;
    for (int pass = 0; pass < passes; ++pass) {
      const int columns = interlaced_ ? PNG_PASS_COLS(width_, pass) : width_;
      const int rows = interlaced_ ? PNG_PASS_ROWS(height_, pass) : height_;
      const auto bytes = std::span<const std::uint8_t>(row_).first(
          static_cast<std::size_t>(columns) * static_cast<std::size_t>(channels_) *
          (samples_ == Samples::kBytes ? 1 : 2));
      for (int y = 0; columns > 0 && y < rows; ++y) {
        if (!errors_.Guarded([&] { png_read_row(png_, row_.data(), nullptr); })) {
          broken_ = true;
          if (pass == 0 && y == 0) return Damaged();
          return {};
        }
        useRow(PlaceOf(pass, y), bytes);
      }
    }
    if (!errors_.Guarded([&] { png_read_end(png_, nullptr); })) broken_ = true;
    return {};
  }

 private:
  static void ReadBytes(png_structp png, png_bytep to, std::size_t count);
  void Prepare();
  void ReadHeader();
  [[nodiscard]] Result<void> CheckLimits() const;
  PngRowPlace PlaceOf(int pass, int y) const;
  tl::unexpected<Error> Damaged();

  ByteReader source_;
  std::size_t fileSize_;
  Samples samples_;
  PngErrors errors_;
  png_structp png_ = nullptr;
  png_infop info_ = nullptr;
  int width_ = 0;
  int height_ = 0;
  int channels_ = 0;
  bool interlaced_ = false;
  bool broken_ = false;  // the library gave up
  std::vector<std::uint8_t> row_;
};

}  // namespace plenovia
