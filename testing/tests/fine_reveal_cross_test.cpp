// Depth of 16 bits on its way through the smooth method and back: found again to parts of a pixel.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <functional>
#include <set>
#include <vector>

#include "engine/fine_reveal.h"
#include "engine/generation.h"
#include "testing/tests/cross_parts.h"

namespace plenovia {
namespace {

constexpr int kWidth = 800;
constexpr int kHeight = 160;
constexpr int kGap = 100;
constexpr int kZmax = 383;

using Surface = std::function<double(double x, double y)>;  // 0 to 1

double Ramp(double x, double) {
  return x / (kWidth - 1);
}
double Dome(double x, double y) {
  const double inside = 1 - std::pow(std::hypot(x - kWidth / 2, y - kHeight / 2) / 300, 2);
  return inside > 0 ? std::sqrt(inside) : 0;
}
double Waves(double x, double y) {
  return 0.5 + 0.4 * std::sin(x / 60) * std::cos(y / 40);
}

FineImage Levels(const Surface& surface) {
  FineImage levels = FineImage::Create(kWidth, kHeight).value();
  for (int y = 0; y < kHeight; ++y) {
    for (int x = 0; x < kWidth; ++x) {
      levels.Row(y)[static_cast<std::size_t>(x)] =
          static_cast<std::uint16_t>(std::lround(surface(x, y) * FineImage::kHighest));
    }
  }
  return levels;
}

double Separation(double depth) {
  return kGap - depth * 255 / kZmax * kGap / 2;
}

struct Found {
  IndexedImage picture;
  PixelVector<float> fine;
  double At(int x, int y) const {
    return fine[static_cast<std::size_t>(y) * static_cast<std::size_t>(picture.width()) +
                static_cast<std::size_t>(x)];
  }
};

Found FindAgain(const FineImage& levels, const IndexedImage& pattern, int threads = 1) {
  QuietMonitor monitor;
  const TSirdsSettings settings{
      .zmax = kZmax, .gapValue = kGap, .marker = 0, .scanMethod = kSmooth};
  Found found;
  found.picture = MakeSirdFromFineImage(levels, {pattern, settings, monitor, threads}).value();
  const RevealOptions options{RevealAnchor::kCentre, kGap / 2, kGap + 10, threads};
  const RevealedDepth whole = Reveal(found.picture, options, monitor).value();
  found.fine = FineSeparations(found.picture, whole, options.anchor, threads, monitor).value();
  return found;
}

TEST(FineReveal, FindsSlopesDomesAndWavesToATwelfthOfAPixel) {
  for (const int number : {0, 3, 8, 11, 15, 18}) {
    const IndexedImage pattern = Pattern(number);
    for (const Surface& surface : {Surface(Ramp), Surface(Dome), Surface(Waves)}) {
      const Found found = FindAgain(Levels(surface), pattern);
      double sum = 0;
      int count = 0;
      for (int y = 10; y < kHeight - 10; ++y) {
        for (int x = 170; x < kWidth - 170; ++x) {  // the dome's outline is an edge
          sum += std::pow(found.At(x, y) - Separation(surface(x, y)), 2);
          ++count;
        }
      }
      EXPECT_LE(std::sqrt(sum / count), 0.08) << number;
    }
  }
}

TEST(FineReveal, FlatScenesAreExactAndEdgesStaySharp) {
  const auto step = [](double x, double) {
    return x < 400 ? 0.2 * kZmax / 255 : 0.6 * kZmax / 255;
  };
  const Found found = FindAgain(Levels(step), Pattern(0), 3);  // 90 and 70 pixels
  int wrong = 0;
  for (int y = 10; y < kHeight - 10; ++y) {
    for (int x = 100; x < 700; ++x) {
      const double off = std::abs(found.At(x, y) - (x < 400 ? 90 : 70));
      if (std::abs(x - 400) > 30) {
        EXPECT_LE(off, 0.01) << x;
      }
      wrong += off > 1;
    }
  }
  EXPECT_LE(wrong, 20 * kHeight);
  EXPECT_EQ(found.fine, FindAgain(Levels(step), Pattern(0), 1).fine);
}

// A thousand depths, one a row, over the same dots.
TEST(FineLevels, AThousandDepthsStayDifferent) {
  constexpr int kDepths = 1000;
  const IndexedImage pattern = Pattern(0);
  IndexedImage tile = IndexedImage::Create(128, 1, pattern.palette()).value();
  std::ranges::copy(pattern.Row(0).first(128), tile.Row(0).begin());
  FineImage levels = FineImage::Create(600, kDepths).value();
  for (int y = 0; y < kDepths; ++y) {
    std::ranges::fill(levels.Row(y), static_cast<std::uint16_t>(y * FineImage::kHighest / kDepths));
  }
  QuietMonitor monitor;
  const TSirdsSettings settings{
      .zmax = kZmax, .gapValue = kGap, .marker = 0, .scanMethod = kSmooth};
  const IndexedImage made = MakeSirdFromFineImage(levels, {tile, settings, monitor, 2}).value();
  std::set<std::vector<std::uint8_t>> rows;
  for (int y = 0; y < kDepths; ++y) {
    const auto row = made.Row(y);
    rows.emplace(row.begin(), row.end());
  }
  EXPECT_EQ(rows.size(), std::size_t{kDepths});
}

}  // namespace
}  // namespace plenovia
