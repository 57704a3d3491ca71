#include "engine/reveal.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <string>
#include <vector>

#include "engine/separation.h"
#include "engine/tests/stereogram_truth.h"
#include "platform/random.h"
#include "testing/picture_compare.h"

namespace plenovia {
namespace {

class TestMonitor : public RunMonitor {
 public:
  explicit TestMonitor(bool stop = false) : stop_(stop) {}
  void OnProgress(ProgressPhase phase, const ProgressInfo&) override { last = phase; }
  bool StopRequested() override { return stop_; }

  ProgressPhase last = ProgressPhase::kStart;

 private:
  bool stop_;
};

Result<RevealedDepth> RevealQuietly(const IndexedImage& picture, const RevealOptions& options) {
  TestMonitor monitor;
  return Reveal(picture, options, monitor);
}

// Random dots of `size` x `size` pixels.
IndexedImage Dots(const Palette& palette, int size) {
  constexpr int kSide = 120;
  Random random(11);
  IndexedImage tile = IndexedImage::Create(kSide, kSide, palette).value();
  for (int y = 0; y < kSide; ++y) {
    for (int x = 0; x < kSide; ++x) {
      const auto column = static_cast<std::size_t>(x);
      if (y % size != 0) {
        tile.Row(y)[column] = tile.Row(y - 1)[column];
      } else if (x % size != 0) {
        tile.Row(y)[column] = tile.Row(y)[column - 1];
      } else {
        tile.Row(y)[column] = static_cast<std::uint8_t>(random.Int(0, palette.size() - 1));
      }
    }
  }
  return tile;
}

struct NamedTile {
  std::string name;
  IndexedImage tile;
};

std::vector<NamedTile> Tiles() {
  Random random(12);
  return {{"mono dots", Dots(Palette::Grays(2), 1)},
          {"gray dots", Dots(Palette::Grays(16), 1)},
          {"colour dots", Dots(RandomPicture(random, 1, 1, 64).palette(), 1)},
          {"large dots", Dots(Palette::Grays(2), 2)}};
}

constexpr int kWidth = 420;
constexpr int kHeight = 150;

struct NamedSurface {
  std::string name;
  LevelPicture levels;
};

std::vector<NamedSurface> Surfaces() {
  const auto distance = [](int x, int y) { return std::hypot(x - 230, y - 75); };
  return {{"steps", LevelPicture(kWidth, kHeight,
                                 [](int x, int y) {
                                   if (x < 120 || x > 340 || y < 20) return 0;
                                   return x < 180 || x > 280 || y < 60 ? 12 : 24;
                                 })},
          {"slanted planes", LevelPicture(kWidth, kHeight,
                                          [](int x, int y) {
                                            const int ramp =
                                                std::max(0, 24 - std::abs(x - 230) / 4);
                                            return y < 75 ? ramp : std::abs(y - 75) / 4;
                                          })},
          {"sphere", LevelPicture(kWidth, kHeight, [&](int x, int y) {
             const double inside = 1 - std::pow(distance(x, y) / 70, 2);
             return inside > 0 ? static_cast<int>(24 * std::sqrt(inside)) : 0;
           })}};
}

class RevealByMethod : public testing::TestWithParam<ScanMethodNumber> {
 protected:
  RevealByMethod() { rule_.settings.scanMethod = GetParam(); }

  int Separation(int level) const {
    return static_cast<int>(SeparationFromLevel(level, rule_.settings, rule_.kind, kWidth));
  }

  StereogramRule rule_;
};

TEST_P(RevealByMethod, FindsTheDepthOfEverySurfaceInEveryTexture) {
  const RevealOptions options{.anchor = ScanMethodOf(GetParam()).anchor,
                              .smallest = Separation(25) - 2,
                              .largest = Separation(0) + 2};
  for (const NamedSurface& surface : Surfaces()) {
    for (const NamedTile& texture : Tiles()) {
      const IndexedImage picture = MakeTestStereogram(surface.levels, texture.tile, rule_);
      const auto revealed = RevealQuietly(picture, options);
      ASSERT_TRUE(revealed);
      const RevealScore score = ScoreReveal(*revealed, surface.levels, rule_);
      EXPECT_GT(score.counted, kWidth * kHeight / 3) << surface.name;
      EXPECT_GE(score.Fraction(), 0.97) << surface.name << " in " << texture.name;
    }
  }
}

TEST_P(RevealByMethod, FindsTheRangeFromThePicture) {
  const NamedSurface surface = Surfaces().front();
  for (const NamedTile& texture : Tiles()) {
    const IndexedImage picture = MakeTestStereogram(surface.levels, texture.tile, rule_);
    const auto revealed = RevealQuietly(picture, {.anchor = ScanMethodOf(GetParam()).anchor});
    ASSERT_TRUE(revealed);
    EXPECT_LE(revealed->smallest, Separation(24)) << texture.name;
    EXPECT_GE(revealed->largest, Separation(0)) << texture.name;
    EXPECT_GE(ScoreReveal(*revealed, surface.levels, rule_).Fraction(), 0.97) << texture.name;
  }
}

TEST_P(RevealByMethod, LevelsComeBackFromTheirSeparations) {
  for (const SourceKind kind : {SourceKind::kImage, SourceKind::kShape}) {
    for (int level = 0; level <= 24; ++level) {
      const auto separation = SeparationFromLevel(level, rule_.settings, kind, kWidth);
      const int back =
          LevelFromSeparation(static_cast<int>(separation), rule_.settings, kind, kWidth);
      EXPECT_EQ(separation, SeparationFromLevel(back, rule_.settings, kind, kWidth)) << level;
    }
    // To parts of a level: within a pixel of the rule, and nearer for less.
    for (int separation = 60; separation < 95; ++separation) {
      const double level = FineLevelFromSeparation(separation, rule_.settings, kind, kWidth);
      const double nearer =
          FineLevelFromSeparation(separation - 0.25, rule_.settings, kind, kWidth);
      if (level <= 0 || nearer >= 255) continue;
      EXPECT_GT(nearer, level) << separation;
      const auto whole = static_cast<std::int32_t>(std::lround(level));
      const auto step = SeparationFromLevel(whole, rule_.settings, kind, kWidth) -
                        SeparationFromLevel(whole + 1, rule_.settings, kind, kWidth);
      EXPECT_NEAR(static_cast<double>(SeparationFromLevel(whole, rule_.settings, kind, kWidth)),
                  separation, 1 + static_cast<double>(step) / 2)
          << separation;
    }
    EXPECT_LE(LevelFromSeparation(10000, rule_.settings, kind, kWidth), 1);
    EXPECT_GE(LevelFromSeparation(1, rule_.settings, kind, kWidth), 24);
  }
}

INSTANTIATE_TEST_SUITE_P(Methods, RevealByMethod,
                         testing::Values(kLeftToRight, kMcMahon, kFeucht, kSmooth));

TEST(Reveal, IsCertainOfRepeatsAndOfNothingElse) {
  Random random(3);
  IndexedImage picture = RandomPicture(random, 300, 60, 16);
  for (int y = 30; y < 60; ++y) {
    for (std::size_t x = 50; x < 300; ++x) picture.Row(y)[x] = picture.Row(y)[x - 50];
  }
  const auto revealed = RevealQuietly(picture, {.smallest = 30, .largest = 59});
  ASSERT_TRUE(revealed);
  const auto mean = [&](int y) {
    int sum = 0;
    for (int x = 100; x < 280; ++x)
      sum += revealed->certainty[static_cast<std::size_t>(y * 300 + x)];
    return sum / 180;
  };
  EXPECT_LT(mean(10), 80);
  EXPECT_GT(mean(50), 220);

  picture.Fill(3);
  const auto uniform = RevealQuietly(picture, {});
  ASSERT_TRUE(uniform);
  EXPECT_EQ(std::count(uniform->certainty.begin(), uniform->certainty.end(), 0), 300 * 60);
}

TEST(Reveal, TakesPicturesOfAnySize) {
  Random random(4);
  for (const auto& [width, height] :
       {std::pair{1, 1}, {1, 40}, {2, 1}, {5, 3}, {40, 1}, {90, 7}, {2000, 2}}) {
    for (const RevealAnchor anchor : {RevealAnchor::kRight, RevealAnchor::kCentre}) {
      const IndexedImage picture = RandomPicture(random, width, height, 4);
      for (const int largest : {0, 33}) {
        const auto revealed =
            RevealQuietly(picture, {.anchor = anchor, .smallest = 1, .largest = largest});
        ASSERT_TRUE(revealed) << width << "x" << height;
        ASSERT_EQ(revealed->separation.size(), picture.pixels().size());
        if (width == 1) {
          EXPECT_EQ(revealed->separation.front(), 0);
          EXPECT_EQ(revealed->certainty.front(), 0);
        }
      }
    }
  }
}

TEST(Reveal, GivesTheSameOnAnyNumberOfThreads) {
  const IndexedImage picture =
      MakeTestStereogram(Surfaces().back().levels, Dots(Palette::Grays(4), 1), {});
  const auto one = RevealQuietly(picture, {.smallest = 60, .largest = 104});
  for (const int threads : {2, 5, 1000}) {
    const auto more = RevealQuietly(picture, {.smallest = 60, .largest = 104, .threads = threads});
    EXPECT_EQ(one->separation, more->separation);
    EXPECT_EQ(one->certainty, more->certainty);
  }
}

TEST(Reveal, RefusesBadRangesAndStopsWhenAsked) {
  Random random(5);
  const IndexedImage picture = RandomPicture(random, 60, 20, 4);
  for (const auto& [smallest, largest] : {std::pair{9, 8}, {-1, 8}, {1, 1025}, {1, 2000000000}}) {
    EXPECT_FALSE(RevealQuietly(picture, {.smallest = smallest, .largest = largest}));
  }
  EXPECT_FALSE(RevealQuietly(IndexedImage(), {}));

  TestMonitor monitor(true);
  const auto stopped = Reveal(picture, {}, monitor);
  ASSERT_FALSE(stopped);
  EXPECT_EQ(stopped.error().code, ErrorCode::kCancelled);
  EXPECT_EQ(monitor.last, ProgressPhase::kEnd);
}

}  // namespace
}  // namespace plenovia
