#include "codec/bmp_run_length.h"

#include <algorithm>
#include <array>

#include "codec/packed_bits.h"

namespace plenovia {

namespace {

// The place where the next pixels go.
class Cursor {
 public:
  Cursor(IndexedImage& image, bool topDown) : image_(image), topDown_(topDown) {}

  bool AllRowsDone() const { return line_ >= image_.height(); }
  bool AllPixelsDone() const {
    return AllRowsDone() || (line_ == image_.height() - 1 && x_ >= Width());
  }
  void NextLine() {
    x_ = 0;
    ++line_;
  }
  void Jump(std::size_t right, int lines) {
    x_ = std::min(x_ + right, Width());
    line_ += lines;
  }
  // The next `count` pixels of this row or as many as there are left in it.
  std::span<std::uint8_t> Take(std::size_t count) {
    const auto row = topDown_ ? image_.Row(line_) : image_.ScanLine(line_);
    const auto taken = row.subspan(x_, std::min(count, Width() - x_));
    x_ += taken.size();
    return taken;
  }

 private:
  std::size_t Width() const { return static_cast<std::size_t>(image_.width()); }

  IndexedImage& image_;
  bool topDown_;
  std::size_t x_ = 0;
  int line_ = 0;
};

void FillRun(std::uint8_t value, int bits, std::span<std::uint8_t> pixels) {
  if (bits == 8) {
    std::fill(pixels.begin(), pixels.end(), value);
    return;
  }
  const std::array<std::uint8_t, 2> turns = {static_cast<std::uint8_t>(value >> 4),
                                             static_cast<std::uint8_t>(value & 15)};
  for (std::size_t i = 0; i < pixels.size(); ++i) pixels[i] = turns[i % 2];
}

}  // namespace

Result<void> DecodeBmpRunLength(std::span<const std::uint8_t> encoded, int bits, bool topDown,
                                IndexedImage& image) {
  enum : std::uint8_t { kEndOfLine = 0, kEndOfPicture = 1, kJump = 2 };
  image.Fill(0);
  Cursor cursor(image, topDown);
  std::size_t at = 0;
  while (!cursor.AllRowsDone() && encoded.size() - at >= 2) {
    const std::uint8_t count = encoded[at];
    const std::uint8_t value = encoded[at + 1];
    at += 2;
    const auto rest = encoded.subspan(at);
    if (count > 0) {
      FillRun(value, bits, cursor.Take(count));
    } else if (value == kEndOfPicture) {
      return {};
    } else if (value == kEndOfLine) {
      cursor.NextLine();
    } else if (value == kJump) {
      if (rest.size() < 2) break;
      cursor.Jump(rest[0], rest[1]);
      at += 2;
    } else {
      const std::size_t bytes = PackedBytes(value, bits);
      if (rest.size() < bytes) break;
      UnpackBits(rest, bits, cursor.Take(value));
      at += std::min(rest.size(), (bytes + 1) / 2 * 2);
    }
  }
  if (cursor.AllPixelsDone()) return {};
  return Failure(ErrorCode::kCorrupt, "the file is truncated");
}

}  // namespace plenovia
