#include "engine/generation.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <new>
#include <string>
#include <utility>
#include <vector>

#include "engine/bands.h"
#include "engine/markers.h"
#include "engine/tests/plain_shift.h"
#include "engine/tiling.h"
#include "testing/picture_compare.h"

namespace plenovia {
namespace {

// Writes down what a run reports and stops it after some looks.
class Recorder : public RunMonitor {
 public:
  void OnProgress(ProgressPhase phase, const ProgressInfo& info) override {
    events.push_back(std::to_string(static_cast<int>(phase)) + " " + info.text + " " +
                     std::to_string(info.done) + "/" + std::to_string(info.total));
  }
  bool StopRequested() override { return looks++ == stopAt; }

  std::vector<std::string> events;
  int looks = 0;
  int stopAt = -1;
};

class Generation : public testing::Test {
 protected:
  RunInput Input(int threads = 1) { return {pattern_, settings_, monitor_, threads}; }

  Random random_{42};
  IndexedImage pattern_ = RandomPicture(random_, 37, 23, 60);
  TSirdsSettings settings_;
  Recorder monitor_;
};

// The run done by hand with whole pictures and the plain rule.
IndexedImage ByHand(const IndexedImage& source, const IndexedImage& pattern,
                    const TSirdsSettings& settings) {
  const bool widens = settings.scanMethod != kFeucht;
  const int gap = settings.gapValue;
  const int width = source.width() + (widens ? gap : 0);
  auto wide = IndexedImage::Create(width, source.height(), pattern.palette().Widened()).value();
  const int origin = ScanMethodOf(settings.scanMethod).TileOrigin(width, pattern.width());
  for (int y = 0; y < wide.height(); ++y) TilePatternRow(wide.Row(y), pattern, origin, y);
  auto result = IndexedImage::Create(source.width(), source.height(), wide.palette()).value();
  for (int n = 0; n < source.height(); ++n) {
    std::vector<std::int32_t> depth(static_cast<std::size_t>(width));
    for (int x = widens ? gap / 2 : 0; x < source.width(); ++x) {
      const auto from = static_cast<std::size_t>(x - (widens ? gap / 2 : 0));
      depth[static_cast<std::size_t>(x)] =
          PixelLevel(source.ScanLine(n)[from], source.palette(), settings.depthSel);
    }
    ShiftRow(wide.ScanLine(n), depth, gap, SourceKind::kImage, settings);
    std::copy_n(wide.ScanLine(n).begin(), source.width(), result.ScanLine(n).begin());
  }
  return result;
}

TEST_F(Generation, PictureRunEqualsThePlainRuleForAnyNumberOfThreads) {
  settings_.marker = 0;
  for (const std::int32_t method : {1, 2, 3}) {
    for (const std::int32_t selection : {kDepthByColor, kDepthByBrightness}) {
      for (const int width : {40, 300, 641}) {
        settings_.scanMethod = method;
        settings_.depthSel = selection;
        const IndexedImage source = RandomPicture(random_, width, 90, 25);
        const IndexedImage expected = ByHand(source, pattern_, settings_);
        for (const int threads : {1, 2, 7}) {
          const auto result = MakeSirdFromBitmap(source, 1.0, Input(threads));
          ASSERT_TRUE(result);
          EXPECT_TRUE(SamePixels(expected, *result)) << "method " << method;
          EXPECT_EQ(result->palette(), pattern_.palette().Widened());
        }
      }
    }
  }
}

TEST_F(Generation, MarkersStandOnBothSidesOfTheMiddle) {
  const IndexedImage source = RandomPicture(random_, 400, 30, 2);
  const auto marked = MakeSirdFromBitmap(source, 1.0, Input()).value();
  settings_.marker = 0;
  const auto plain = MakeSirdFromBitmap(source, 1.0, Input()).value();
  const std::uint8_t yellow = marked.palette().Nearest({255, 255, 0});
  const std::uint8_t black = marked.palette().Nearest({0, 0, 0});
  for (int y = 0; y < 30; ++y) {
    for (int x = 0; x < 400; ++x) {
      const int nearest = x < 200 ? 150 : 250;
      const int dx = std::abs(x - nearest);
      const int dy = std::abs(y - 7);
      const auto column = static_cast<std::size_t>(x);
      std::uint8_t expected = plain.Row(y)[column];
      if (dx <= 2 && dy <= 2) expected = dx == 2 || dy == 2 ? black : yellow;
      ASSERT_EQ(marked.Row(y)[column], expected) << x << ", " << y;
    }
  }
}

// Whether the palette has room or not, the squares differ from all that is around them.
TEST(Markers, LargeOnesContrastWithTheirRows) {
  const Rgb warm[] = {{255, 255, 0}, {250, 240, 20}, {255, 0, 0}, {240, 30, 10}};
  for (const bool full : {false, true}) {
    Palette palette = Palette(warm).Widened();
    for (int i = 4; full && i < 256; ++i) palette.Set(i, {0, 0, static_cast<std::uint8_t>(i)});
    IndexedImage picture = IndexedImage::Create(400, 40, palette).value();
    Random random(5);
    for (int y = 0; y < picture.height(); ++y) {
      for (std::uint8_t& pixel : picture.Row(y)) {
        pixel = static_cast<std::uint8_t>(random.Int(0, full && y > 30 ? 255 : 3));
      }
    }
    const IndexedImage before = picture;
    DrawMarkers(picture, 100, MarkerSize::kLarge);
    const Rgb inside = picture.palette()[picture.Row(11)[150]];
    EXPECT_GT(inside.blue, 200);
    EXPECT_LT(inside.red, 50);
    int changed = 0;
    for (int y = 0; y < picture.height(); ++y) {
      for (std::size_t x = 0; x < 400; ++x) {
        changed += picture.palette()[picture.Row(y)[x]] != before.palette()[before.Row(y)[x]];
      }
    }
    EXPECT_GE(changed,
              full ? 2 * 9 * 9 : 2 * 13 * 13);  // a full palette has no colour for the outline
  }
}

TEST_F(Generation, ReportsPhasesInOrder) {
  settings_.scanMethod = kFeucht;
  const IndexedImage source = RandomPicture(random_, 400, 400, 20);
  ASSERT_TRUE(MakeSirdFromBitmap(source, 1.0, Input()));
  std::vector<std::string> expected = {"1  0/0", "3 Generating Dots 0/100"};
  for (int row = 50; row < 400; row += 50) {
    expected.push_back("4 Shifting Dots " + std::to_string(400 * row) + "/160000");
  }
  expected.push_back("2  0/0");
  EXPECT_EQ(monitor_.events, expected);
}

TEST_F(Generation, StopsAfterABandWithoutAResult) {
  monitor_.stopAt = 0;
  const auto result = MakeSirdFromBitmap(RandomPicture(random_, 400, 400, 20), 1.0, Input());
  ASSERT_FALSE(result);
  EXPECT_EQ(result.error().code, ErrorCode::kCancelled);
  EXPECT_EQ(monitor_.events,
            (std::vector<std::string>{"1  0/0", "3 Generating Dots 0/100", "2  0/0"}));
}

TEST_F(Generation, AZoomedRunIsThatOfTheZoomedPictureWithTheZoomedGap) {
  settings_.gapValue = 60;
  const IndexedImage source = RandomPicture(random_, 160, 40, 20);
  auto doubled = IndexedImage::Create(320, 80, source.palette()).value();
  // Rows are counted from below.
  auto halved = IndexedImage::Create(80, 20, source.palette()).value();
  for (int y = 0; y < 80; ++y) {
    for (std::size_t x = 0; x < 320; ++x) doubled.Row(y)[x] = source.Row(y / 2)[x / 2];
  }
  for (int y = 0; y < 20; ++y) {
    for (std::size_t x = 0; x < 80; ++x) halved.Row(y)[x] = source.Row(2 * y + 1)[2 * x];
  }
  for (const std::int32_t method : {kLeftToRight, kMcMahon, kFeucht}) {
    settings_.scanMethod = method;
    for (const auto& [zoom, zoomed] : {std::pair(2.0, doubled), std::pair(0.5, halved)}) {
      const auto result = MakeSirdFromBitmap(source, zoom, Input()).value();
      TSirdsSettings settings = settings_;
      settings.gapValue = static_cast<std::int32_t>(settings_.gapValue * zoom);
      const auto expected = MakeSirdFromBitmap(zoomed, 1.0, {pattern_, settings, monitor_});
      EXPECT_TRUE(SamePixels(expected.value(), result)) << "method " << method;
    }
  }
  // Less than the gap is left of it, which once gave a negative width.
  EXPECT_EQ(MakeSirdFromBitmap(RandomPicture(random_, 60, 60, 9), 0.25, Input())->width(), 15);
  const auto nothing = MakeSirdFromBitmap(RandomPicture(random_, 3, 60, 9), 0.25, Input());
  EXPECT_EQ(nothing.error().message, "The picture is too small for this zoom.");
  EXPECT_EQ(monitor_.events.back(), "2  0/0");
}

// A grid with a level of its own at each point.
class Slope : public LevelGrid {
 public:
  Slope(int width, int height) : width_(width), height_(height) {}
  int GridWidth() const override { return width_; }
  int GridHeight() const override { return height_; }
  void LevelRow(int y, std::span<std::int32_t> levels) const override {
    for (std::size_t x = 0; x < levels.size(); ++x) levels[x] = 1000 * y + static_cast<int>(x);
  }

 private:
  int width_;
  int height_;
};

TEST(DepthRows, MapRowsCountFromTheTopAndLieHalfAGapToTheRight) {
  std::vector<std::int32_t> depth(400, -1);
  BuildMapDepthRow(depth, Slope(300, 20), 19, 50);
  EXPECT_EQ(depth[49], 0);
  EXPECT_EQ(depth[50], 0);
  EXPECT_EQ(depth[299], 249);
  EXPECT_EQ(depth[300], 0);
  BuildMapDepthRow(depth, Slope(40, 20), 0, 50);
  EXPECT_EQ(depth, std::vector<std::int32_t>(400, 0));
}

TEST_F(Generation, MapsOfImpossibleSizeEndTheRun) {
  for (const auto& [width, height] : {std::pair{0, 5}, {5, -1}, {2000000000, 2}}) {
    const auto result = MakeSirdFromDepthMap(Slope(width, height), Input());
    EXPECT_FALSE(result);
    EXPECT_EQ(monitor_.events.back(), "2  0/0");
  }
  EXPECT_EQ(MakeSirdFromDepthMap(Slope(30, 20), Input(2)).value().width(), 30);
}

std::int32_t NoDepth(std::int32_t, std::int32_t, std::int32_t, std::int32_t, std::int32_t,
                     std::int32_t) {
  return 0;
}

// A grid that runs out of memory in one row.
class Starved : public Slope {
 public:
  using Slope::Slope;
  void LevelRow(int y, std::span<std::int32_t> levels) const override {
    if (y == GridHeight() / 2) throw std::bad_alloc();
    Slope::LevelRow(y, levels);
  }
};

TEST_F(Generation, NoMemoryInAnyThreadEndsTheRun) {
  for (const int threads : {1, 2, 5}) {
    const auto result = MakeSirdFromDepthMap(Starved(400, 2000), Input(threads));
    ASSERT_FALSE(result);
    EXPECT_EQ(result.error().code, ErrorCode::kTooLarge);
    EXPECT_EQ(monitor_.events.back(), "2  0/0");
  }
}

TEST_F(Generation, SettingsBeyondEveryPictureAreRefused) {
  constexpr std::int32_t kLowest = std::numeric_limits<std::int32_t>::min();
  constexpr std::int32_t kHighest = std::numeric_limits<std::int32_t>::max();
  const IndexedImage source = RandomPicture(random_, 40, 30, 9);
  for (const std::int32_t gap : {kLowest, -300, -1, kHighest}) {
    settings_.gapValue = gap;
    EXPECT_FALSE(MakeSirdFromBitmap(source, 1.0, Input()));
    EXPECT_FALSE(MakeSirdFromDepthMap(Slope(40, 30), Input()));
  }
  for (const std::int32_t gap : {0, 1, 32767}) {
    settings_.gapValue = gap;
    EXPECT_TRUE(MakeSirdFromBitmap(source, 1.0, Input()));
    EXPECT_TRUE(MakeSirdFromDepthMap(Slope(40, 30), Input()));
  }
  settings_ = {.dx = kLowest, .dy = kHighest};
  EXPECT_FALSE(MakeSirdFromFigure({NoDepth, -1, nullptr, {}}, Input()));
}

// Packs its arguments into one number.
std::int32_t Arguments(std::int32_t x, std::int32_t y, std::int32_t cx, std::int32_t cy,
                       std::int32_t angle, std::int32_t code) {
  return x + 1000 * (y + 1000 * (cx - 200)) + cy + angle + code;
}

TEST(DepthRows, FiguresAreAskedForTheRightPoints) {
  TSirdsSettings settings{.dx = 3, .dy = -4, .da = 7, .scanMethod = kLeftToRight};
  std::vector<std::int32_t> depth(400);
  BuildFigureDepthRow(depth, Arguments, -2, 10, 400, 300, settings);
  EXPECT_EQ(depth[5], Arguments(2, 14, 250, 150, 7, -2));
  settings.scanMethod = kFeucht;
  BuildFigureDepthRow(depth, Arguments, -2, 10, 400, 300, settings);
  EXPECT_EQ(depth[5], Arguments(52, 14, 250, 150, 7, -2));
}

TEST_F(Generation, FigureOverAPictureTakesItsSizeAndThePatternsColours) {
  settings_.marker = 0;
  settings_.scanMethod = 0;  // leaves the background as it is
  const IndexedImage background = RandomPicture(random_, 120, 50, 200);
  int captions = 0;
  const FigureRun run{NoDepth, -1, &background, [&](IndexedImage&) { ++captions; }};
  const auto result = MakeSirdFromFigure(run, Input()).value();
  EXPECT_EQ(captions, 1);
  auto expected = IndexedImage::Create(120, 50, pattern_.palette().Widened()).value();
  for (std::size_t i = 0; i < expected.pixels().size(); ++i) {
    const Rgb colour = background.palette()[background.pixels()[i]];
    expected.pixels()[i] = expected.palette().Nearest(colour);
  }
  EXPECT_TRUE(SamePixels(expected, result));
}

TEST(Bands, TakeAtMost32000Bytes) {
  EXPECT_EQ(BandHeight(400, 400), 50);
  EXPECT_EQ(BandHeight(1200, 1200), 19);
  EXPECT_EQ(BandHeight(10, 40000), 1);
  EXPECT_EQ(BandHeight(7, 100), 7);
}

TEST(Tiles, StartAtTheLeftOrAroundTheMiddle) {
  Random random(3);
  for (const int tileWidth : {100, 37, 700}) {
    const IndexedImage tile = RandomPicture(random, tileWidth, 9, 256);
    auto picture = IndexedImage::Create(500, 20, tile.palette()).value();
    for (const std::int32_t method : {1, 2, 3}) {
      const int origin = ScanMethodOf(method).TileOrigin(500, tileWidth);
      EXPECT_EQ(origin, method == 1 ? 0 : 250 - tileWidth / 2);
      for (int y = 0; y < 20; ++y) TilePatternRow(picture.Row(y), tile, origin, y);
      for (int y = 0; y < 20; ++y) {
        for (int x = 0; x < 500; ++x) {
          const int column = ((x - origin) % tileWidth + tileWidth) % tileWidth;
          ASSERT_EQ(picture.Row(y)[static_cast<std::size_t>(x)],
                    tile.Row(y % 9)[static_cast<std::size_t>(column)]);
        }
      }
    }
  }
}

TEST(PixelLevel, IsTheIndexOrTheRoundedBrightness) {
  const std::vector<Rgb> colours = {{255, 255, 255}, {255, 0, 0}, {0, 255, 0}, {0, 0, 255}};
  const Palette palette(colours);
  const std::vector<int> brightness = {255, 76, 150, 29};
  for (int i = 0; i < 4; ++i) {
    EXPECT_EQ(PixelLevel(i, palette, kDepthByBrightness), brightness[static_cast<std::size_t>(i)]);
  }
  EXPECT_EQ(PixelLevel(4, palette, kDepthByBrightness), 0);
  EXPECT_EQ(PixelLevel(200, palette, kDepthByColor), 200);
  EXPECT_EQ(PixelLevel(200, palette, 0), 0);
}

}  // namespace
}  // namespace plenovia
