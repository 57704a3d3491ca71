// The pictures of a scene: depth, pair of views, relief, and what is found again.

#include <gtest/gtest.h>

#include <algorithm>

#include "engine/generation.h"
#include "engine/quiet_monitor.h"
#include "viewing/depth_picture.h"
#include "viewing/found_again.h"
#include "viewing/relief.h"
#include "viewing/stereo_pair.h"
#include "viewing/tests/scenes.h"

namespace plenovia {
namespace {

std::uint32_t At(const RgbPicture& picture, int x, int y) {
  return picture.Row(y)[static_cast<std::size_t>(x)];
}
int Green(std::uint32_t colour) {
  return static_cast<int>(colour >> 8 & 255U);
}

TEST(DepthPicture, MarksWhatTheRangeDoesNotHold) {
  const LevelField field = FieldOf(4, 1, [](int x, int) { return 10 * x; });  // 0 10 20 30
  const RgbPicture picture = DepthPicture(field, {10, 20});
  EXPECT_EQ(At(picture, 0, 0), kTooFarColour);
  EXPECT_EQ(At(picture, 1, 0), OpaqueColour(0, 0, 0));
  EXPECT_EQ(At(picture, 2, 0), OpaqueColour(255, 255, 255));
  EXPECT_EQ(At(picture, 3, 0), kTooNearColour);
}

TEST(StereoPair, NearPartsMoveApartAndTheGroundStays) {
  const LevelField scene = BoxScene(240, 30, 63);
  const IndexedImage tile = NoiseTile(64, 30);
  const SeparationTable table(TSirdsSettings{}, SourceKind::kShape, 240);
  const StereoPair pair = CoverWithPattern(scene, tile, table);
  const auto texture = [&](int x, int y) {
    const int gray = tile.Row(y)[static_cast<std::size_t>(x % 64)];
    return OpaqueColour(gray, gray, gray);
  };
  constexpr int kShift = 240 / 30 / 2;
  for (const int x : {100, 120, 140}) {
    EXPECT_EQ(At(pair.left, x + kShift, 15), texture(x, 15));
    EXPECT_EQ(At(pair.right, x - kShift, 15), texture(x, 15));
  }
  EXPECT_EQ(At(pair.left, 5, 2), texture(5, 2));
  EXPECT_EQ(At(pair.right, 235, 2), texture(235, 2));

  const RgbPicture glasses = Anaglyph(pair);
  EXPECT_EQ(At(glasses, 120, 15) & 0xffffU, At(pair.right, 120, 15) & 0xffffU);
  EXPECT_EQ(At(glasses, 120, 15) >> 16 & 255U, At(pair.left, 120, 15) >> 16 & 255U);
}

TEST(Relief, LightsSlopesByTheirSideAndFillsTheSurface) {
  const LevelField hill = FieldOf(120, 120, [](int x, int y) {
    const int dx = x - 60;
    const int dy = y - 60;
    return std::max(0, 50 - (dx * dx + dy * dy) / 40);
  });
  const ReliefView above{0, 0, 1};
  const RgbPicture picture = Relief(hill, {0, 63}, above, 100, 100);
  EXPECT_GT(Green(At(picture, 40, 40)), Green(At(picture, 60, 60)) + 20) << "light is upper left";
  const RgbPicture empty = Relief(LevelField(), {0, 63}, above, 100, 100);
  int ground = 0;
  for (int y = 10; y < 90; ++y) {
    for (int x = 10; x < 90; ++x) ground += At(picture, x, y) == At(empty, x, y);
  }
  EXPECT_EQ(ground, 0) << "holes in the surface";
  EXPECT_EQ(At(picture, 1, 1), At(empty, 1, 1)) << "room around the surface";
}

TEST(Relief, TakesAnyNumbers) {
  const LevelField wild = FieldOf(
      40, 30, [](int x, int y) { return (x + y) % 2 == 0 ? 2'000'000'000 : -2'000'000'000; });
  for (const double number : {-1e9, -90.0, 0.0, 90.0, 1e9}) {
    const RgbPicture picture = Relief(wild, {5, 5}, {number, number, number}, 64, 48);
    EXPECT_EQ(picture.width, 64);
  }
  EXPECT_EQ(Relief(wild, {0, 63}, {}, 0, 48).width, 0);
}

// Reveal of the stereogram of `scene`, held against `claimed`.
FoundAgain Found(const LevelField& scene, const LevelField& claimed, std::int32_t method) {
  TSirdsSettings settings;
  settings.scanMethod = method;
  settings.marker = 0;
  QuietMonitor quiet;
  const ScanMethod& scan = ScanMethodOf(method);
  const IndexedImage tile = NoiseTile(128, 64);
  const IndexedImage made = MakeSirdFromDepthMap(scene, RunInput{tile, settings, quiet}).value();
  const SeparationTable table(settings, SourceKind::kShape,
                              scan.RunWidth(scene.width(), settings.gapValue));
  const auto [smallest, largest] = SeparationsToSearch({{0, 1}, {24, 1}}, table);
  const RevealedDepth revealed = Reveal(made, {scan.anchor, smallest, largest}, quiet).value();
  if (claimed.empty()) return CompareFound(revealed, claimed, table, scan.anchor);
  const MapDepth source(claimed, scan.StartColumn(settings.gapValue));
  const FieldSize size{scene.width(), scene.height()};
  return CompareFound(revealed, ReadLevels(source, size, size), table, scan.anchor);
}

TEST(FoundAgain, SearchesAroundTheSeparationsThatOccur) {
  const SeparationTable table(TSirdsSettings{}, SourceKind::kShape, 500);
  const auto usual = SeparationsToSearch({{0, 1}, {63, 1}}, table);
  EXPECT_EQ(usual.smallest, 49);
  EXPECT_EQ(usual.largest, 101);
  const auto wild = SeparationsToSearch({{-2'000'000'000, 1}, {2'000'000'000, 1}}, table);
  EXPECT_EQ(wild.smallest, 4);
  EXPECT_EQ(wild.largest, 1027);
  EXPECT_EQ(SeparationsToSearch({}, table).largest, 0);
}

TEST(FoundAgain, CountsWhatIsRightAndMarksWhatIsNot) {
  const LevelField scene = BoxScene(400, 90, 12);
  for (std::int32_t method = kLeftToRight; method <= kSmooth; ++method) {
    const FoundAgain same = Found(scene, scene, method);
    EXPECT_GT(same.counted, 400 * 90 / 2) << method;
    EXPECT_GT(same.Share(), 0.85) << method;
    const FoundAgain other = Found(scene, BoxScene(400, 90, 4), method);
    EXPECT_LT(other.Share(), same.Share() - 0.03) << method;
    const auto red = std::ranges::count(other.picture.pixels, kWrongColour);
    EXPECT_EQ(red, other.counted - other.found) << method;
  }
  EXPECT_EQ(Found(scene, LevelField(), kMcMahon).counted, 0);
}

}  // namespace
}  // namespace plenovia
