#include "images/add_pattern.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

#include "images/pattern_files.h"
#include "platform/file_io.h"
#include "testing/picture_compare.h"
#include "testing/temp_folder.h"

namespace plenovia {
namespace {

namespace fs = std::filesystem;

TEST(CutPattern, TakesTheTopLeftCornerAndRepeatsWhatIsSmaller) {
  Random random(5);
  for (const auto& [width, height] :
       {std::pair{130, 240}, {100, 100}, {99, 101}, {37, 260}, {1, 1}}) {
    const IndexedImage picture = RandomPicture(random, width, height, 200);
    const auto tile = CutPattern(picture);
    ASSERT_TRUE(tile) << width << 'x' << height;
    EXPECT_EQ(tile->palette(), picture.palette());
    IndexedImage expected = IndexedImage::Create(100, 100, picture.palette()).value();
    for (int y = 0; y < 100; ++y) {
      for (int x = 0; x < 100; ++x) {
        expected.Row(y)[static_cast<std::size_t>(x)] =
            picture.Row(y % height)[static_cast<std::size_t>(x % width)];
      }
    }
    EXPECT_TRUE(SamePixels(expected, *tile)) << width << 'x' << height;
  }
  EXPECT_FALSE(CutPattern(IndexedImage()));
}

class AddPatterns : public testing::Test {
 protected:
  // The library of a folder in which the files 0..count-1 lie but the one that is missing.
  void Make(int count, int missing = -1) {
    Random random(1);
    fs::create_directories(shipped_);
    TSirdPatt maker(shipped_);
    for (int n = 0; n < count; ++n) {
      ASSERT_TRUE(AddPattern(maker, RandomPicture(random, n + 1, n + 1, 16), user_));
    }
    fs::remove(shipped_ / PatternFileName(missing));
  }
  TSirdPatt Load(int start, int count) { return LoadPatterns(shipped_, user_, start, count); }
  // The picture of the last pattern, as the colours of the picture that it was cut from.
  static testing::AssertionResult LastIs(TSirdPatt& library, const IndexedImage& picture) {
    library.SelectPattern(library.GetCount() - 1);
    return SameColours(CutPattern(picture).value(), *library.GetCurrentBitmap());
  }

  TempFolder folder_;
  Random random_{3};
  const IndexedImage picture_ = RandomPicture(random_, 140, 120, 256);
  fs::path shipped_ = folder_ / "shipped";
  const fs::path user_ = folder_ / "data" / "sirdspat";
};

TEST_F(AddPatterns, TakesTheNextNumberAndIsThereAtTheNextStart) {
  Make(20);
  TSirdPatt library = Load(4, 20);
  ASSERT_TRUE(AddPattern(library, picture_, user_));
  EXPECT_TRUE(fs::exists(shipped_ / "pat20.gif"));
  EXPECT_FALSE(fs::exists(user_));
  EXPECT_EQ(library.GetCount(), 21);
  EXPECT_EQ(library.GetCurrentIndex(), 4);
  EXPECT_TRUE(LastIs(library, picture_));

  TSirdPatt again = Load(20, library.GetCount());
  EXPECT_EQ(again.GetCurrentIndex(), 20);
  EXPECT_TRUE(LastIs(again, picture_));
}

TEST_F(AddPatterns, NeverReplacesAFile) {
  Make(20, 3);
  const std::vector<std::uint8_t> damaged{'n', 'o'};
  ASSERT_TRUE(WriteFile(shipped_ / "pat05.gif", damaged));
  fs::create_symlink("nowhere", shipped_ / "pat20.gif");
  TSirdPatt library = Load(0, 20);
  ASSERT_EQ(library.GetCount(), 18);
  ASSERT_TRUE(AddPattern(library, picture_, user_));
  ASSERT_TRUE(AddPattern(library, picture_, user_));
  EXPECT_TRUE(fs::exists(shipped_ / "pat03.gif"));
  EXPECT_TRUE(fs::is_symlink(shipped_ / "pat20.gif"));
  EXPECT_TRUE(fs::exists(shipped_ / "pat21.gif"));
  EXPECT_EQ(ReadFile(shipped_ / "pat05.gif")->size(), damaged.size());
}

TEST_F(AddPatterns, GoToTheUsersFolderWhereTheProgramsCannotBeWritten) {
  Make(21);
  TSirdPatt library = Load(0, 21);
  // A folder that is gone stands for one that may not be written: tests may run as root.
  fs::rename(shipped_, folder_ / "elsewhere");
  ASSERT_TRUE(AddPattern(library, picture_, user_));
  ASSERT_TRUE(AddPattern(library, RandomPicture(random_, 5, 5, 9), user_));
  EXPECT_EQ(library.GetCount(), 23);
  fs::rename(folder_ / "elsewhere", shipped_);

  // They come after the program's own, and the selection outlasts a restart.
  const TSirdPatt again = Load(22, library.GetCount());
  EXPECT_EQ(again.GetCount(), 23);
  EXPECT_EQ(again.GetCurrentIndex(), 22);
  EXPECT_EQ(*again.GetCurrentBitmap(), (library.SelectPattern(22), *library.GetCurrentBitmap()));
  EXPECT_EQ(Load(21, 20).GetCurrentIndex(), 21) << "without a settings file";
}

TEST_F(AddPatterns, FailWithoutAnyFolder) {
  ASSERT_TRUE(WriteFile(folder_ / "data", std::vector<std::uint8_t>{1}));
  TSirdPatt library(folder_ / "nowhere");
  EXPECT_FALSE(AddPattern(library, picture_, user_));
  EXPECT_FALSE(AddPattern(library, picture_, {}));
  EXPECT_FALSE(AddPattern(library, IndexedImage(), folder_.path()));
  EXPECT_EQ(library.GetCount(), 0);
  EXPECT_EQ(folder_.Count(), 1);
}

}  // namespace
}  // namespace plenovia
