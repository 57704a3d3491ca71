// A gray picture of 16 bits a pixel.
#pragma once

#include <cstddef>
#include <cstdint>
#include <new>
#include <span>

#include "platform/limits.h"
#include "platform/pixel_buffer.h"
#include "platform/result.h"

namespace plenovia {

// Rows top down. As depth, 0 is the far plane.
class FineImage {
 public:
  static constexpr std::uint16_t kHighest = 65535;

  FineImage() = default;
  // The pixels are not set. Fails as CheckPictureSize() does, and with kTooLarge when the memory
  // does not suffice.
  [[nodiscard]] static Result<FineImage> Create(int width, int height) {
    if (auto fits = CheckPictureSize(width, height); !fits) return tl::unexpected(fits.error());
    try {
      FineImage image;
      image.width_ = width;
      image.height_ = height;
      image.pixels_.resize(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
      return image;
    } catch (const std::bad_alloc&) {
      return Failure(ErrorCode::kTooLarge, "There is not enough memory for the picture.");
    }
  }

  int width() const { return width_; }
  int height() const { return height_; }
  bool empty() const { return pixels_.empty(); }
  std::span<std::uint16_t> pixels() { return pixels_; }
  std::span<const std::uint16_t> pixels() const { return pixels_; }
  std::span<std::uint16_t> Row(int y) { return pixels().subspan(Begin(y), Width()); }
  std::span<const std::uint16_t> Row(int y) const { return pixels().subspan(Begin(y), Width()); }

 private:
  std::size_t Width() const { return static_cast<std::size_t>(width_); }
  std::size_t Begin(int y) const { return static_cast<std::size_t>(y) * Width(); }

  int width_ = 0;
  int height_ = 0;
  PixelVector<std::uint16_t> pixels_;
};

}  // namespace plenovia
