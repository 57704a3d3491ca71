#include "engine/fit_depth_range.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <string>
#include <vector>

#include "engine/depth_source.h"
#include "engine/generation.h"
#include "engine/quiet_monitor.h"
#include "engine/reveal.h"
#include "engine/tests/stereogram_truth.h"
#include "platform/random.h"
#include "testing/picture_compare.h"

namespace plenovia {
namespace {

constexpr auto kImage = SourceKind::kImage;
constexpr auto kShape = SourceKind::kShape;

struct FitCase {
  std::int32_t method;
  SourceKind kind;
  LevelRange levels;
  std::int32_t zmin;
  std::int32_t zmax;
  LevelRange expected;
};

TEST(FitDepthRange, KeepsARangeThatShowsTheSourceAndFitsAnyOther) {
  const std::vector<FitCase> cases = {
      {kMcMahon, kImage, {0, 63}, 0, 63, {0, 63}},
      {kMcMahon, kImage, {0, 64}, 0, 63, {0, 96}},
      {kMcMahon, kShape, {9, 63}, 10, 63, {9, 90}},
      {kMcMahon, kImage, {0, 2}, 0, 63, {0, 3}},  // 1 pixel of depth
      {kMcMahon, kImage, {200, 200}, 0, 63, {200, 202}},
      {kMcMahon, kShape, kFigureLevels, 0, 255, {0, 255}},
      {kMcMahon, kImage, {0, 5}, 7, 7, {0, 8}},
      {kLeftToRight, kImage, {0, 12}, 0, 63, {0, 63}},
      {kLeftToRight, kImage, {0, 13}, 0, 63, {0, 101}},
      {kLeftToRight, kShape, kFigureLevels, 0, 63, {0, 63}},
      {kLeftToRight, kShape, {0, 50}, 0, 63, {0, 97}},
      {kFeucht, kImage, {0, 96}, 0, 63, {0, 63}},
      {kFeucht, kImage, {5, 97}, 0, 63, {5, 97}},
      {kFeucht, kShape, kFigureLevels, 0, 63, {0, 63}},
      {kFeucht, kShape, {0, 25}, 0, 63, {0, 100}},
      {kFeucht, kShape, {3, 3}, 5, 5, {12, 16}},
      {kSmooth, kImage, {0, 64}, 0, 63, {0, 96}},
      {0, kImage, {0, 255}, 0, 63, {0, 63}},
  };
  for (const FitCase& one : cases) {
    TSirdsSettings settings{.zmax = one.zmax, .zmin = one.zmin, .scanMethod = one.method};
    const FittedRange range = FitDepthRange(one.levels, one.kind, settings);
    const std::string what = ScanMethodOf(one.method).name + (" to " + range.notice);
    EXPECT_EQ(range.zmin, one.expected.lowest) << what;
    EXPECT_EQ(range.zmax, one.expected.highest) << what;
    const bool asSet = range.zmin == one.zmin && range.zmax == one.zmax;
    EXPECT_EQ(range.fitted, !asSet) << what;
    EXPECT_EQ(range.notice.empty(), asSet) << what;
    // What was fitted is kept.
    settings.zmin = range.zmin;
    settings.zmax = range.zmax;
    EXPECT_FALSE(FitDepthRange(one.levels, one.kind, settings).fitted) << what;
  }
}

// A slope, a roof and wide steps of `count` grays, from index 0 on or spread over all brightnesses.
IndexedImage GrayScene(int count, bool spread) {
  constexpr int kWidth = 560;
  constexpr int kBand = 40;
  const Palette palette = spread ? Palette::Grays(count) : Palette::Grays(256);
  IndexedImage picture = IndexedImage::Create(kWidth, 3 * kBand, palette).value();
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < kWidth; ++x) {
      const int roof = kWidth / 2 - std::abs(x - kWidth / 2);
      const int steps = x / (kWidth / 4) * kWidth / 3;
      const int at = y < kBand ? x : y < 2 * kBand ? 2 * roof : steps;
      picture.Row(y)[static_cast<std::size_t>(x)] =
          static_cast<std::uint8_t>(std::min(at * count / kWidth, count - 1));
    }
  }
  return picture;
}

class FittedPictures : public testing::TestWithParam<ScanMethodNumber> {};

TEST_P(FittedPictures, AreFoundAgain) {
  Random random(9);
  const IndexedImage pattern = RandomPicture(random, 100, 100, 64);
  for (int count = 2; count <= 256; count += count < 16 ? 1 : 30) {
    for (const bool spread : {false, true}) {
      const IndexedImage picture = GrayScene(count, spread);
      StereogramRule rule;
      rule.kind = kImage;
      rule.settings.scanMethod = GetParam();
      rule.settings.marker = 0;
      if (spread) rule.settings.depthSel = kDepthByBrightness;
      const LevelRange levels = LevelsOf(picture, rule.settings.depthSel);
      EXPECT_EQ(levels.highest, spread ? 255 : count - 1);
      const FittedRange range = FitDepthRange(levels, kImage, rule.settings);
      rule.settings.zmin = range.zmin;
      rule.settings.zmax = range.zmax;

      QuietMonitor monitor;
      const auto made = MakeSirdFromBitmap(picture, 1.0, {pattern, rule.settings, monitor}).value();
      const ScanMethod& method = ScanMethodOf(GetParam());
      const auto found = Reveal(made, {.anchor = method.anchor}, monitor).value();
      const std::int32_t gap = rule.settings.gapValue;
      const auto byIndex = PixelLevels(picture.palette(), rule.settings.depthSel);
      const LevelPicture truth(
          method.RunWidth(picture.width(), gap), picture.height(), [&](int x, int y) {
            const int from = x - method.StartColumn(gap);
            const bool fed = from >= 0 && x < picture.width();
            return fed ? byIndex[picture.Row(y)[static_cast<std::size_t>(from)]] : 0;
          });
      const RevealScore score = ScoreReveal(found, truth, rule);
      EXPECT_GT(score.counted, picture.width() * picture.height() / 8) << count << spread;
      EXPECT_GE(score.Fraction(), 0.97)
          << count << (spread ? " grays of all" : " grays") << ", " << range.notice;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Methods, FittedPictures, testing::Values(kLeftToRight, kMcMahon, kFeucht));

}  // namespace
}  // namespace plenovia
