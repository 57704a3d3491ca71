// What the smooth method promises, in shipped patterns and beside McMahon's method: depth to parts
// of a pixel, whole surroundings of edges, no streaks.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <filesystem>
#include <functional>
#include <limits>
#include <optional>
#include <string>
#include <vector>

#include "engine/generation.h"
#include "testing/tests/cross_parts.h"

namespace plenovia {
namespace {

constexpr int kWidth = 800;
constexpr int kHeight = 60;
constexpr int kGap = 100;
constexpr int kZmax = 256;  // a level is 50/256 pixel

using Surface = std::function<double(double x, double y)>;  // levels

double Ramp(double x, double) {
  return 255 * x / (kWidth - 1);
}
double Dome(double x, double y) {
  const double inside = 1 - std::pow(std::hypot(x - kWidth / 2, y - kHeight / 2) / 300, 2);
  return inside > 0 ? 255 * std::sqrt(inside) : 0;
}
// Blocks with sides of a quarter of the gap.
double Blocks(double x, double) {
  return x >= 0 && std::fmod(x + 30, 160) < 80 ? 128 : 0;
}

double Separation(double level) {
  return kGap - level / kZmax * kGap / 2;
}

IndexedImage Stereogram(const Surface& surface, const IndexedImage& pattern, std::int32_t method,
                        int threads = 1) {
  IndexedImage source = IndexedImage::Create(kWidth, kHeight, Palette::Grays()).value();
  for (int y = 0; y < kHeight; ++y) {
    for (int x = 0; x < kWidth; ++x) {
      source.Row(y)[static_cast<std::size_t>(x)] =
          static_cast<std::uint8_t>(std::lround(surface(x, y)));
    }
  }
  TSirdsSettings settings{.zmax = kZmax, .gapValue = kGap, .marker = 0, .scanMethod = method};
  QuietMonitor monitor;
  return MakeSirdFromBitmap(source, 1.0, {pattern, settings, monitor, threads}).value();
}

// What the right eye sees at a pixel.
struct Sight {
  double column = 0;  // of the source
  double separation = kGap;
  bool byBoth = false;  // the left eye sees it too
};

// Row y as McMahon's method has it, in whole pixels at the right one of a pair, or the smooth one.
std::vector<Sight> Sights(const Surface& surface, std::int32_t method, double y) {
  std::vector<Sight> right(kWidth);
  std::vector<double> left(kWidth, kGap);
  const auto forEach = [&](const auto& visit) {
    constexpr int kParts = 8;
    for (int i = 0; i < kWidth * kParts; ++i) {
      double x = static_cast<double>(i) / kParts;
      const double separation = Separation(surface(method == kMcMahon ? x - kGap / 2 : x, y));
      const double half = method == kMcMahon ? 0 : separation / 2;
      const auto r = static_cast<int>(std::lround(x + half));
      const auto l = static_cast<int>(std::lround(x + half - separation));
      // The closest to the middle of pixel r.
      if (r < kWidth && l >= 0) visit(x, separation, r, l, std::abs(x + half - r));
    }
  };
  std::vector<double> offset(kWidth, 1);
  forEach([&](double x, double separation, int r, int l, double off) {
    const auto at = static_cast<std::size_t>(r);
    auto& nearest = left[static_cast<std::size_t>(l)];
    nearest = std::min(nearest, separation);
    const double nearer = right[at].separation - separation;
    if (nearer < -1 || (nearer < 1 && off >= offset[at])) return;
    offset[at] = off;
    right[at] = {method == kMcMahon ? x - kGap / 2 : x, separation, false};
  });
  for (int p = 0; p < kWidth; ++p) {
    Sight& sight = right[static_cast<std::size_t>(p)];
    const auto l = std::lround(p - sight.separation);
    sight.byBoth = l >= 0 && left[static_cast<std::size_t>(l)] > sight.separation - 2;
  }
  return right;
}

// Finds the separation at a pixel by its surroundings.
class Matcher {
 public:
  explicit Matcher(const IndexedImage& picture) {
    for (const std::uint8_t index : picture.pixels()) {
      const Rgb c = picture.palette()[index];
      colours_.push_back({double(c.red), double(c.green), double(c.blue)});
    }
  }

  // Of whole pixels the best.
  int Whole(int x, int y) const {
    double least = std::numeric_limits<double>::max();
    int best = 0;
    for (int s = kGap / 2 - 4; s <= kGap + 4; ++s) {
      double cost = 0;
      for (int j = -3; j <= 3; ++j) {
        for (int i = -4; i <= 4; ++i) {
          for (std::size_t c = 0; c < 3; ++c) {
            cost += std::abs(At(x + i, y + j)[c] - At(x + i - s, y + j)[c]);
          }
        }
      }
      if (cost < least) best = s;
      least = std::min(least, cost);
    }
    return best;
  }

  // From there on by the method of Lucas and Kanade, for a plane of any slope.
  double Fine(int x, int y, int whole) const {
    std::array<double, 3> plane = {double(whole), 0,
                                   0};  // separation, its growth by column and row
    for (int round = 0; round < 8; ++round) {
      std::array<std::array<double, 4>, 3> equations{};
      for (int j = -3; j <= 3; ++j) {
        for (int i = -7; i <= 7; ++i) {
          const std::array<double, 3> place = {1, double(i), double(j)};
          const double partner = x + i - plane[0] - plane[1] * i - plane[2] * j;
          const int pixel = static_cast<int>(std::floor(partner));
          for (std::size_t c = 0; c < 3; ++c) {
            const double from = At(pixel, y + j)[c];
            const double slope = At(pixel + 1, y + j)[c] - from;
            const double error = from + slope * (partner - pixel) - At(x + i, y + j)[c];
            for (std::size_t a = 0; a < 3; ++a) {
              for (std::size_t b = 0; b < 3; ++b) {
                equations[a][b] += slope * slope * place[a] * place[b];
              }
              equations[a][3] += slope * error * place[a];
            }
          }
        }
      }
      for (std::size_t a = 0; a < 3; ++a) {
        for (std::size_t b = 0; b < 3; ++b) {
          if (a == b) continue;
          const double factor = equations[b][a] / equations[a][a];
          for (std::size_t k = 0; k < 4; ++k) equations[b][k] -= factor * equations[a][k];
        }
      }
      for (std::size_t a = 0; a < 3; ++a) plane[a] += equations[a][3] / equations[a][a];
    }
    return plane[0];
  }

 private:
  const std::array<double, 3>& At(int x, int y) const {
    return colours_[static_cast<std::size_t>(y * kWidth + std::clamp(x, 0, kWidth - 1))];
  }
  std::vector<std::array<double, 3>> colours_;
};

// The root of the mean squared error away from edges.
double DepthError(const Surface& surface, const IndexedImage& picture, std::int32_t method) {
  const Matcher matcher(picture);
  double sum = 0;
  int count = 0;
  for (int y = 8; y < kHeight - 8; y += 7) {
    const std::vector<Sight> sights = Sights(surface, method, y);
    for (int x = 120; x < kWidth - 20; x += 3) {
      const Sight& sight = sights[static_cast<std::size_t>(x)];
      if (std::abs(sight.column - kWidth / 2) > 230) continue;
      const int whole = matcher.Whole(x, y);
      if (std::abs(whole - sight.separation) > 1.5) continue;
      sum += std::pow(matcher.Fine(x, y, whole) - sight.separation, 2);
      ++count;
    }
  }
  EXPECT_GT(count, 600);
  return std::sqrt(sum / count);
}

TEST(Smooth, SlopesAndDomesAreFoundToATenthOfAPixel) {
  for (const int number : {0, 3, 5, 11, 15}) {
    const IndexedImage pattern = Pattern(number);
    for (const Surface& surface : {Surface(Ramp), Surface(Dome)}) {
      const auto error = [&](std::int32_t method) {
        return DepthError(surface, Stereogram(surface, pattern, method), method);
      };
      EXPECT_LE(error(kSmooth), 0.1) << number;
      EXPECT_GT(error(kMcMahon), 0.4) << number;
    }
  }
}

// Pixels beside the blocks that both eyes see and whose match is wrong.
int WrongBesideEdges(const IndexedImage& picture, std::int32_t method) {
  const Matcher matcher(picture);
  const std::vector<Sight> sights = Sights(Blocks, method, 0);
  int wrong = 0;
  for (int y = 8; y < kHeight - 8; y += 7) {
    for (int x = 150; x < kWidth - 20; ++x) {
      const Sight& sight = sights[static_cast<std::size_t>(x)];
      if (sight.byBoth) wrong += std::abs(matcher.Whole(x, y) - sight.separation) > 1.5;
    }
  }
  return wrong;
}

int LongestRun(const IndexedImage& picture) {
  int longest = 0;
  for (int y = 0; y < picture.height(); ++y) {
    int run = 0;
    std::optional<std::uint8_t> last;
    for (const std::uint8_t pixel : picture.Row(y)) {
      run = pixel == last ? run + 1 : 1;
      last = pixel;
      longest = std::max(longest, run);
    }
  }
  return longest;
}

TEST(Smooth, EdgesSpoilLittleAndLeaveNoStreaks) {
  int smoothWrong = 0;
  int mcMahonWrong = 0;
  for (int number = 0; number < 20; ++number) {
    const IndexedImage pattern = Pattern(number);
    const IndexedImage smooth = Stereogram(Blocks, pattern, kSmooth);
    smoothWrong += WrongBesideEdges(smooth, kSmooth);
    mcMahonWrong += WrongBesideEdges(Stereogram(Blocks, pattern, kMcMahon), kMcMahon);
    const int own = LongestRun(pattern);
    // Chance may join dots at a seam, and a steep slope draws them out.
    EXPECT_LE(LongestRun(smooth), std::max(8, own * 3 / 2)) << number;
    EXPECT_LE(LongestRun(Stereogram(Dome, pattern, kSmooth)), std::max(8, own * 4)) << number;
  }
  EXPECT_LE(2 * smoothWrong, mcMahonWrong);
}

TEST(Smooth, FlatScenesRepeatExactlyAndRowsAreIndependent) {
  for (const int number : {0, 5, 17}) {
    const IndexedImage pattern = Pattern(number);
    for (const int level : {0, 128}) {
      const auto separation = static_cast<std::size_t>(Separation(level));
      const IndexedImage flat =
          Stereogram([=](double, double) { return level; }, pattern, kSmooth, 3);
      for (int y = 0; y < kHeight; ++y) {
        const auto row = flat.Row(y);
        EXPECT_TRUE(std::ranges::equal(row.subspan(separation), row.first(row.size() - separation)))
            << level;
      }
    }
    EXPECT_EQ(Stereogram(Dome, pattern, kSmooth, 1), Stereogram(Dome, pattern, kSmooth, 5));
  }
}

}  // namespace
}  // namespace plenovia
