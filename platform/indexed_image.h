// A picture of 8-bit pixels that refer to a palette: changing the palette changes the picture.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "platform/palette.h"
#include "platform/pixel_buffer.h"
#include "platform/result.h"

namespace plenovia {

// Rows lie top down in memory without padding. A value: copies are deep; a moved-from or
// default-made picture has no pixels. Pixels may name entries beyond the palette: those are black.
class IndexedImage {
 public:
  IndexedImage() = default;

  // A picture whose pixels are not yet set. Fails when CheckPictureSize does or no memory is left.
  [[nodiscard]] static Result<IndexedImage> Create(int width, int height, const Palette& palette);

  int width() const { return width_; }
  int height() const { return height_; }
  bool empty() const { return pixels_.empty(); }

  const Palette& palette() const { return palette_; }
  void SetPalette(const Palette& palette) { palette_ = palette; }

  // All pixels, row after row.
  std::span<const std::uint8_t> pixels() const { return pixels_; }
  std::span<std::uint8_t> pixels() { return pixels_; }
  // Row `y` counted from the top, 0..height-1.
  std::span<const std::uint8_t> Row(int y) const { return pixels().subspan(Offset(y), Width()); }
  std::span<std::uint8_t> Row(int y) { return pixels().subspan(Offset(y), Width()); }
  // Scan line `n` counted from the bottom, 0..height-1.
  std::span<const std::uint8_t> ScanLine(int n) const { return Row(height_ - 1 - n); }
  std::span<std::uint8_t> ScanLine(int n) { return Row(height_ - 1 - n); }

  void Fill(std::uint8_t index);

  bool operator==(const IndexedImage&) const = default;

 private:
  std::size_t Width() const { return static_cast<std::size_t>(width_); }
  std::size_t Offset(int y) const { return static_cast<std::size_t>(y) * Width(); }

  int width_ = 0;
  int height_ = 0;
  Palette palette_;
  ByteBuffer pixels_;
};

}  // namespace plenovia
