#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <set>
#include <string>
#include <vector>

#include "codec/graph_io.h"
#include "depthmap/depth_map_file.h"

namespace plenovia {
namespace {

std::filesystem::path Sample(const std::string& name) {
  return std::filesystem::path(SHIPPED_SAMPLES) / name;
}

Result<IndexedImage> Picture(const std::string& name) {
  return TGraphIO().Read_File(Sample(name));
}

TEST(Samples, GrayPicturesSpanTheLevelsFromFarToNear) {
  for (const char* name : {"still-life.png", "shark.png", "chess.jpg"}) {
    const Result<IndexedImage> picture = Picture(name);
    ASSERT_TRUE(picture) << name << ": " << picture.error().message;
    EXPECT_EQ(picture->width(), 800) << name;
    EXPECT_EQ(picture->height(), 600) << name;
    EXPECT_EQ(picture->palette(), Palette::Grays()) << name;
    const auto [least, most] = std::ranges::minmax(picture->pixels());
    EXPECT_LT(least, 16) << name;
    EXPECT_GT(most, 190) << name;
  }
}

TEST(Samples, TheIndexesOfTheIslandAreHeightsOfTheDefaultRange) {
  const Result<IndexedImage> island = Picture("island.png");
  ASSERT_TRUE(island) << island.error().message;
  EXPECT_EQ(island->palette().size(), 64);
  const std::set<std::uint8_t> heights(island->pixels().begin(), island->pixels().end());
  EXPECT_LE(*heights.rbegin(), 63);
  EXPECT_GT(heights.size(), 56u);
}

TEST(Samples, DepthMapsUseLevelsThatEveryScanMethodShows) {
  for (const char* name : {"house.rds", "sailing-boat.rds"}) {
    const Result<DepthMapContents> map = ReadDepthMap(Sample(name));
    ASSERT_TRUE(map) << name << ": " << map.error().message;
    EXPECT_FALSE(map->damaged) << name;
    EXPECT_EQ(map->list.GridWidth(), 800) << name;
    EXPECT_EQ(map->list.GridHeight(), 600) << name;
    std::set<std::int32_t> levels;
    std::vector<std::int32_t> row(800);
    for (int y = 0; y < 600; ++y) {
      map->list.LevelRow(y, row);
      levels.insert(row.begin(), row.end());
    }
    EXPECT_GE(*levels.begin(), 0) << name;
    EXPECT_LE(*levels.rbegin(), 24) << name;
    EXPECT_GE(levels.size(), 10u) << name;
  }
}

TEST(Samples, TheCastleHasAShapeOfEachTool) {
  const Result<DepthMapContents> map = ReadDepthMap(Sample("castle.rds"));
  ASSERT_TRUE(map) << map.error().message;
  EXPECT_FALSE(map->damaged);
  std::set<DepthObjKind> kinds;
  for (auto* object = map->list.Head(); object != nullptr; object = TDepthList::Below(*object)) {
    kinds.insert(object->GetKind());
  }
  EXPECT_EQ(kinds, (std::set<DepthObjKind>{LineObj, CurveObj, SquareBoxObj, RoundBoxObj, PolygonObj,
                                           CircleObj}));
}

}  // namespace
}  // namespace plenovia
