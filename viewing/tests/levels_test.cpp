// Levels read out of sources: whole, sampled, counted, and kept while a grid is edited.

#include <gtest/gtest.h>

#include <vector>

#include "viewing/level_histogram.h"
#include "viewing/level_snapshot.h"
#include "viewing/tests/scenes.h"

namespace plenovia {
namespace {

IndexedImage Ramp(int width, int height) {
  IndexedImage picture = IndexedImage::Create(width, height, Palette::Grays()).value();
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      picture.Row(y)[static_cast<std::size_t>(x)] = static_cast<std::uint8_t>(x + 10 * y);
    }
  }
  return picture;
}

TEST(LevelField, HoldsASourceTopDownAndSamplesTheMiddlesOfItsParts) {
  const IndexedImage picture = Ramp(9, 6);
  const PictureDepth source(picture, 1.0, 0, kDepthByColor);
  const LevelField whole = ReadLevels(source, {9, 6}, {9, 6});
  const LevelField third = ReadLevels(source, {9, 6}, {3, 2});
  for (int y = 0; y < 6; ++y) {
    for (std::size_t x = 0; x < 9; ++x) EXPECT_EQ(whole.Row(y)[x], picture.Row(y)[x]);
  }
  for (int y = 0; y < 2; ++y) {
    for (std::size_t x = 0; x < 3; ++x) {
      EXPECT_EQ(third.Row(y)[x], picture.Row(3 * y + 1)[3 * x + 1]);
    }
  }
}

TEST(LevelField, FitsARoomInItsOwnShapeAndNeverGrows) {
  EXPECT_EQ(FitInto({400, 300}, {1000, 1000}), (FieldSize{400, 300}));
  EXPECT_EQ(FitInto({400, 300}, {200, 1000}), (FieldSize{200, 150}));
  EXPECT_EQ(FitInto({4000, 1}, {40, 40}), (FieldSize{40, 1}));
  EXPECT_EQ(FitInto({0, 0}, {40, 40}), (FieldSize{1, 1}));
}

TEST(LevelHistogram, CountsBytesAndWildLevelsAlike) {
  const IndexedImage picture = Ramp(20, 5);
  const LevelHistogram ramp = CountLevels(PictureDepth(picture, 1.0, 0, kDepthByColor), {20, 5});
  EXPECT_EQ(LevelsOf(ramp).lowest, 0);
  EXPECT_EQ(LevelsOf(ramp).highest, 59);
  std::int64_t sum = 0;
  for (const LevelCount& entry : ramp) sum += entry.count;
  EXPECT_EQ(sum, 100);

  const LevelField wild = FieldOf(4, 2, [](int x, int) { return x == 0 ? -2'000'000'000 : 300; });
  const LevelHistogram counted = CountLevels(MapDepth(wild, 0), {4, 2});
  EXPECT_EQ(counted, (LevelHistogram{{-2'000'000'000, 2}, {300, 6}}));
  EXPECT_EQ(Binned(counted, {-2'000'000'000, 2'000'000'000}, 2), (std::vector<std::int64_t>{2, 6}));
  EXPECT_EQ(Binned(counted, {0, 255}, 1), (std::vector<std::int64_t>{0}));
}

TEST(LevelSnapshot, StaysAsItIsAndUpdatesOnlyTheRowsNamed) {
  LevelField grid = FieldOf(30, 100, [](int x, int y) { return x + 1000 * y; });
  const auto before = LevelSnapshot::Of(grid);
  for (int y = 0; y < 100; ++y) grid.Row(y)[3] = -y;
  const auto after = before->Updated(grid, 40, 41);

  const auto levelAt = [](const LevelGrid& of, int y) {
    std::vector<std::int32_t> row(31, 7);
    of.LevelRow(y, row);
    EXPECT_EQ(row.back(), 0) << "beyond the grid";
    return row[3];
  };
  for (int y = 0; y < 100; ++y) EXPECT_EQ(levelAt(*before, y), 3 + 1000 * y);
  EXPECT_EQ(levelAt(*after, 40), -40);
  EXPECT_EQ(levelAt(*after, 0), 3) << "shared with the one before";
  EXPECT_EQ(levelAt(*after, 99), 99'003);
  EXPECT_EQ(levelAt(*after, -1), 0);

  const LevelField other(5, 5);
  const auto resized = after->Updated(other, 0, 0);
  EXPECT_EQ(resized->GridWidth(), 5);
  EXPECT_EQ(levelAt(*resized, 4), 0);
}

}  // namespace
}  // namespace plenovia
