#include "codec/tests/reader_checks.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "platform/random.h"
#include "testing/picture_compare.h"

namespace plenovia {

namespace {

template <class PixelText>
std::string Rows(const Result<IndexedImage>& picture, const PixelText& text) {
  if (!picture) return picture.error().message;
  std::string all;
  for (int y = 0; y < picture->height(); ++y) {
    if (y > 0) all += '/';
    for (std::size_t x = 0; x < picture->Row(y).size(); ++x) all += text(picture->Row(y)[x], x);
  }
  return all;
}

std::string Hexadecimal(std::uint8_t byte) {
  constexpr char kDigits[] = "0123456789abcdef";
  return {kDigits[byte >> 4], kDigits[byte & 15]};
}

}  // namespace

std::string Indexes(const Result<IndexedImage>& picture) {
  return Rows(picture, [](std::uint8_t index, std::size_t) {
    return index < 16 ? Hexadecimal(index).substr(1) : "#";
  });
}

std::string Colours(const Result<IndexedImage>& picture) {
  return Rows(picture, [&](std::uint8_t index, std::size_t x) {
    const Rgb c = picture->palette()[index];
    return (x > 0 ? " " : "") + Hexadecimal(c.red) + Hexadecimal(c.green) + Hexadecimal(c.blue);
  });
}

void ExpectTruncationIsNoticed(Reader read, const ByteBuffer& file) {
  const auto whole = read(file);
  ASSERT_TRUE(whole) << whole.error().message;
  for (std::size_t size = 0; size < file.size(); ++size) {
    // A copy of its own, so that a sanitizer sees every byte read beyond the end.
    const std::vector<std::uint8_t> part(file.begin(),
                                         file.begin() + static_cast<std::ptrdiff_t>(size));
    const auto picture = read(part);
    if (!picture || !picture->damage.empty()) continue;
    EXPECT_TRUE(SameColours(*whole, *picture)) << "cut off after " << size << " bytes";
  }
}

void ExpectCorruptionIsHarmless(Reader read, const ByteBuffer& file) {
  Random random(file.size());
  for (int round = 0; round < 2000; ++round) {
    std::vector<std::uint8_t> broken(file.begin(), file.end());
    for (int changes = random.Int(1, 4); changes > 0; --changes) {
      const auto last = static_cast<int>(broken.size()) - 1;
      // Headers are where most faults are.
      const int at = random.Int(0, random.Int(0, 1) == 0 ? std::min(last, 80) : last);
      broken[static_cast<std::size_t>(at)] = random.Byte();
    }
    const auto picture = read(broken);
    if (!picture) {
      EXPECT_FALSE(picture.error().message.empty());
    }
  }
}

}  // namespace plenovia
