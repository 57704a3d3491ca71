#include "images/cut_picture.h"

#include <gtest/gtest.h>

#include "testing/picture_compare.h"

namespace plenovia {
namespace {

TEST(CutPicture, TakesWhatOfTheRectangleLiesInThePicture) {
  Random random(3);
  const IndexedImage picture = RandomPicture(random, 40, 30, 200);
  struct Case {
    PixelRect asked;
    PixelRect cut;
  };
  for (const Case& c : {Case{{5, 6, 17, 9}, {5, 6, 17, 9}}, Case{{17, 9, 5, 6}, {5, 6, 17, 9}},
                        Case{{17, 6, 5, 9}, {5, 6, 17, 9}}, Case{{-50, -9, 3, 70}, {0, 0, 3, 30}},
                        Case{{39, 29, 4000000000, 31}, {39, 29, 40, 30}},
                        Case{{8, 3, 8, 20}, {0, 0, 40, 30}}, Case{{}, {0, 0, 40, 30}}}) {
    const auto cut = CutPicture(picture, c.asked);
    ASSERT_TRUE(cut) << c.asked.left;
    ASSERT_EQ(cut->width(), c.cut.right - c.cut.left);
    ASSERT_EQ(cut->height(), c.cut.bottom - c.cut.top);
    EXPECT_EQ(cut->palette(), picture.palette());
    for (int y = 0; y < cut->height(); ++y) {
      for (int x = 0; x < cut->width(); ++x) {
        const auto expected =
            picture.Row(static_cast<int>(c.cut.top) + y)[static_cast<std::size_t>(c.cut.left + x)];
        ASSERT_EQ(cut->Row(y)[static_cast<std::size_t>(x)], expected);
      }
    }
  }
  EXPECT_FALSE(CutPicture(picture, {40, 0, 50, 10}));
  EXPECT_FALSE(CutPicture(picture, {3, -10, 5, 0}));
  EXPECT_FALSE(CutPicture(IndexedImage(), {}));
}

}  // namespace
}  // namespace plenovia
