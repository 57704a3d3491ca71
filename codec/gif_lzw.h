// The compression of GIF pictures (Welch, "A technique for high-performance data compression",
// Computer 17, 1984).
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>

namespace plenovia {

inline constexpr int kLzwCodes = 4096;

// At 12 bits a code and at most 4096 pixels a code; shorter codes stand for much less.
inline constexpr std::size_t kMostGifPixelsPerByte = 4096 * 8 / 12;

// Fills `pixels` from the codes that `nextCode()` gives: the code, or a negative number when there
// is none. `codeBits` (1..8) is the width of a pixel. Returns how many pixels there are: fewer than
// wanted when the codes end too early or name strings that do not exist. Every string has occurred
// in the pixels, so none is stored.
template <class NextCode>
std::size_t ExpandLzw(int codeBits, NextCode nextCode, std::span<std::uint8_t> pixels) {
  struct String {
    std::size_t start = 0;
    std::size_t length = 0;
  };
  const int clear = 1 << codeBits;
  std::array<String, kLzwCodes> strings;
  int next = clear + 2;
  String previous;
  std::size_t done = 0;
  std::size_t codesLeft = 2 * pixels.size() + 2;  // more would be nothing but clear codes
  while (done < pixels.size()) {
    const int code = codesLeft-- > 0 ? nextCode() : -1;
    if (code < 0) break;
    if (code == clear) {
      next = clear + 2;
      previous = {};
      continue;
    }
    if (previous.length > 0 && next < kLzwCodes) {
      strings[static_cast<std::size_t>(next++)] = {previous.start, previous.length + 1};
    }
    if (code < clear) {
      pixels[done] = static_cast<std::uint8_t>(code);
      previous = {done++, 1};
      continue;
    }
    if (code == clear + 1 || code >= next) break;
    const String string = strings[static_cast<std::size_t>(code)];
    const std::size_t length = std::min(string.length, pixels.size() - done);
    if (string.start + length <= done) {
      std::memcpy(&pixels[done], &pixels[string.start], length);
    } else {  // the string ends with the pixel that it begins with
      for (std::size_t i = 0; i < length; ++i) pixels[done + i] = pixels[string.start + i];
    }
    previous = {done, length};
    done += length;
  }
  return done;
}

}  // namespace plenovia
