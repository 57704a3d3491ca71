// The colours that the pixels of an indexed picture refer to.
#pragma once

#include <array>
#include <cstdint>
#include <span>

namespace plenovia {

struct Rgb {
  std::uint8_t red = 0;
  std::uint8_t green = 0;
  std::uint8_t blue = 0;
  bool operator==(const Rgb&) const = default;
};

// 1 to 256 colours in a fixed order. Reading beyond the last colour gives black.
class Palette {
 public:
  Palette() = default;  // one entry, black
  // The first 256 of the given colours; one black entry when there are none.
  explicit Palette(std::span<const Rgb> colours);
  // `count` grays (2..256, clamped) from black to white in even steps; with 256, gray = index.
  static Palette Grays(int count = 256);

  int size() const { return size_; }
  // `index` is 0..255.
  Rgb operator[](int index) const { return entries_[static_cast<std::size_t>(index)]; }
  // Changes an entry below size(); others are ignored.
  void Set(int index, Rgb colour);
  std::span<const Rgb> entries() const {
    return {entries_.data(), static_cast<std::size_t>(size_)};
  }
  // The same colours, then black up to 256 entries.
  Palette Widened() const;

  // The entry with the smallest squared distance in red, green and blue; the first of equals.
  std::uint8_t Nearest(Rgb colour) const;

  bool operator==(const Palette&) const = default;

 private:
  std::array<Rgb, 256> entries_{};  // black from size_ on
  int size_ = 1;
};

}  // namespace plenovia
