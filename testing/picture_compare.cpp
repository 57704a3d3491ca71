#include "testing/picture_compare.h"

#include <algorithm>
#include <cstdlib>
#include <string>
#include <vector>

namespace plenovia {

namespace {

std::string Describe(Rgb c) {
  return "(" + std::to_string(c.red) + ", " + std::to_string(c.green) + ", " +
         std::to_string(c.blue) + ")";
}

template <class Difference>
testing::AssertionResult Compare(const IndexedImage& expected, const IndexedImage& actual,
                                 const Difference& difference) {
  if (expected.width() != actual.width() || expected.height() != actual.height()) {
    return testing::AssertionFailure()
           << "expected " << expected.width() << "x" << expected.height() << ", got "
           << actual.width() << "x" << actual.height();
  }
  int wrong = 0;
  std::string first;
  for (int y = 0; y < expected.height(); ++y) {
    for (int x = 0; x < expected.width(); ++x) {
      const auto column = static_cast<std::size_t>(x);
      const std::string text = difference(expected.Row(y)[column], actual.Row(y)[column]);
      if (text.empty()) continue;
      if (wrong++ == 0) first = "(" + std::to_string(x) + ", " + std::to_string(y) + "): " + text;
    }
  }
  if (wrong == 0) return testing::AssertionSuccess();
  return testing::AssertionFailure() << wrong << " pixels differ, the first at " << first;
}

}  // namespace

testing::AssertionResult SamePixels(const IndexedImage& expected, const IndexedImage& actual) {
  return Compare(expected, actual, [](int want, int got) -> std::string {
    if (want == got) return "";
    return "index " + std::to_string(got) + " instead of " + std::to_string(want);
  });
}

testing::AssertionResult SameColours(const IndexedImage& expected, const IndexedImage& actual,
                                     int tolerance) {
  return Compare(expected, actual, [&](int want, int got) -> std::string {
    const Rgb a = expected.palette()[want];
    const Rgb b = actual.palette()[got];
    const int off =
        std::max({std::abs(a.red - b.red), std::abs(a.green - b.green), std::abs(a.blue - b.blue)});
    return off <= tolerance ? "" : Describe(b) + " instead of " + Describe(a);
  });
}

IndexedImage RandomPicture(Random& random, int width, int height, int colours) {
  std::vector<Rgb> entries(static_cast<std::size_t>(colours));
  for (Rgb& entry : entries) entry = {random.Byte(), random.Byte(), random.Byte()};
  IndexedImage image = IndexedImage::Create(width, height, Palette(entries)).value();
  for (auto& pixel : image.pixels()) {
    pixel = static_cast<std::uint8_t>(random.Int(0, colours - 1));
  }
  return image;
}

}  // namespace plenovia
