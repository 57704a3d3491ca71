#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <filesystem>
#include <string>

#include "codec/gif_intf.h"
#include "platform/random.h"
#include "sirdspat/indexed_tile.h"
#include "sirdspat/tile_quality.h"
#include "sirdspat/tile_table.h"
#include "testing/picture_compare.h"

namespace plenovia {
namespace {

Result<IndexedImage> ShippedTile(std::size_t number) {
  const std::string digits = std::to_string(number);
  return TGifIntf::Read_File(std::filesystem::path(SHIPPED_TILES) /
                             ("pat" + std::string(number < 10 ? "0" : "") + digits + ".gif"));
}

class ShippedTiles : public testing::TestWithParam<std::size_t> {};

TEST_P(ShippedTiles, AreGoodToFuse) {
  const Result<IndexedImage> tile = ShippedTile(GetParam());
  ASSERT_TRUE(tile) << tile.error().message;
  EXPECT_GE(tile->width(), 100) << "the tile repeats itself within the default gap";
  const TileQuality quality = MeasureTile(*tile);
  EXPECT_TRUE(IsGoodToFuse(quality))
      << "repeat " << quality.repeat << ", local " << quality.localRepeat << ", detail "
      << quality.leastDetail << ", seam " << quality.seam;
  for (const Rgb mark : {Rgb{255, 255, 0}, Rgb{0, 0, 128}}) {
    const Palette& palette = tile->palette();
    EXPECT_EQ(palette[palette.Nearest(mark)], mark) << "markers and caption do not stand out";
  }
}

INSTANTIATE_TEST_SUITE_P(All, ShippedTiles, testing::Range<std::size_t>(0, 20));

TEST(TileTable, ItsQuickTilesAreTheShippedOnes) {
  ASSERT_EQ(TileTable().size(), 20u);
  for (const std::size_t number : {0u, 1u, 2u, 3u, 4u, 9u, 10u}) {
    const TileRecipe& recipe = TileTable()[number];
    const Result<IndexedImage> made = IndexTile(recipe.make(recipe.seed));
    const Result<IndexedImage> shipped = ShippedTile(number);
    ASSERT_TRUE(made && shipped) << recipe.name;
    EXPECT_TRUE(SameColours(*made, *shipped)) << recipe.name;
  }
}

TEST(MeasureTile, SeesASeamAtTheDefaultGap) {
  // Light and dark that change slowly under fine grain: the cut shows unless the gap is the width.
  const auto clouds = [](int width) {
    Random random(2);
    const Palette palette = Palette::Grays();
    IndexedImage tile = IndexedImage::Create(width, 64, palette).value();
    for (int y = 0; y < 64; ++y) {
      for (int x = 0; x < width; ++x) {
        const double wave = std::sin(6.2832 * x / width + y / 64.0 * 6.2832);
        tile.Row(y)[static_cast<std::size_t>(x)] =
            static_cast<std::uint8_t>(100 + 60 * wave + random.Int(0, 80));
      }
    }
    return MeasureTile(tile).seam;
  };
  EXPECT_NEAR(clouds(100), 1, 1e-9);
  EXPECT_GT(clouds(150), 2);
}

TEST(MeasureTile, SeesRepeatsAndFlatPlaces) {
  Random random(1);
  IndexedImage tile = RandomPicture(random, 96, 48, 64);
  const TileQuality rich = MeasureTile(tile);
  EXPECT_LT(rich.repeat, 0.1);
  EXPECT_TRUE(IsGoodToFuse(rich));

  IndexedImage patched = tile;
  for (int y = 12; y < 24; ++y) {
    for (std::size_t x = 12; x < 36; ++x) patched.Row(y)[x + 30] = patched.Row(y)[x];
  }
  EXPECT_LT(MeasureTile(patched).repeat, 0.3);
  EXPECT_GT(MeasureTile(patched).localRepeat, 0.99);

  for (int y = 0; y < 48; ++y) {
    for (std::size_t x = 24; x < 96; ++x) patched.Row(y)[x] = patched.Row(y)[x - 24];
  }
  EXPECT_GT(MeasureTile(patched).repeat, 0.99);

  for (int y = 20; y < 28; ++y) {
    for (std::size_t x = 20; x < 29; ++x) tile.Row(y)[x] = 7;
  }
  EXPECT_EQ(MeasureTile(tile).leastDetail, 0);
}

}  // namespace
}  // namespace plenovia
