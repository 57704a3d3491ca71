#include "images/add_pattern.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

#include "codec/gif.h"
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
  AddPatterns() {
    fs::create_directories(folders_.program);
    for (int n = 0; n < kShippedPatterns; ++n) {
      const auto encoded = EncodeGif(RandomPicture(random_, n + 1, n + 1, 16));
      EXPECT_TRUE(WriteFile(folders_.program / PatternFileName(n), encoded->pieces()));
    }
  }
  // The picture of the last pattern, as the colours of the picture that it was cut from.
  static testing::AssertionResult LastIs(TSirdPatt& library, const IndexedImage& picture) {
    library.SelectPattern(library.GetCount() - 1);
    return SameColours(CutPattern(picture).value(), *library.GetCurrentBitmap());
  }

  TempFolder folder_;
  Random random_{3};
  const IndexedImage picture_ = RandomPicture(random_, 140, 120, 256);
  PatternFolders folders_{folder_ / "shipped", folder_ / "data" / "sirdspat"};
};

TEST_F(AddPatterns, TakeTheNextNumberAndAreThereAtTheNextStart) {
  TSirdPatt library = LoadPatterns(folders_, 4);
  ASSERT_TRUE(AddPattern(library, picture_));
  EXPECT_TRUE(fs::exists(folders_.program / "pat20.gif"));
  EXPECT_FALSE(fs::exists(folders_.user));
  EXPECT_EQ(library.GetCount(), 21);
  EXPECT_EQ(library.GetCurrentIndex(), 4);
  EXPECT_TRUE(LastIs(library, picture_));

  TSirdPatt again = LoadPatterns(folders_, library.GetCurrentNumber());
  EXPECT_EQ(again.GetCurrentIndex(), 20);
  EXPECT_TRUE(LastIs(again, picture_));
}

TEST_F(AddPatterns, NeverReplaceAFileAndKeepTheirNumbers) {
  const fs::path shipped = folders_.program;
  for (const int missing : {0, 3, 19}) fs::remove(shipped / PatternFileName(missing));
  const std::vector<std::uint8_t> damaged{'n', 'o'};
  ASSERT_TRUE(WriteFile(shipped / "pat05.gif", damaged));
  fs::create_symlink("nowhere", shipped / "pat20.gif");
  TSirdPatt library = LoadPatterns(folders_, 0);
  ASSERT_EQ(library.GetCount(), 16);
  ASSERT_TRUE(AddPattern(library, RandomPicture(random_, 5, 5, 9)));
  ASSERT_TRUE(AddPattern(library, picture_));
  EXPECT_TRUE(fs::is_symlink(shipped / "pat20.gif"));
  EXPECT_TRUE(fs::exists(shipped / "pat21.gif"));
  EXPECT_EQ(ReadFile(shipped / "pat05.gif")->size(), damaged.size());

  library.SelectPattern(17);
  EXPECT_EQ(library.GetCurrentNumber(), 22);
  fs::remove(shipped / "pat07.gif");
  TSirdPatt again = LoadPatterns(folders_, library.GetCurrentNumber());
  EXPECT_EQ(again.GetCurrentNumber(), 22);
  EXPECT_TRUE(LastIs(again, picture_));
}

TEST_F(AddPatterns, GoToTheUsersFolderWhereTheProgramsTakesNone) {
  TSirdPatt library = LoadPatterns(folders_, 0);
  // A folder that is gone stands for one that may not be written: tests may run as root.
  fs::rename(folders_.program, folder_ / "elsewhere");
  ASSERT_TRUE(AddPattern(library, picture_));
  fs::rename(folder_ / "elsewhere", folders_.program);

  folders_.programTakesNew = false;
  TSirdPatt ofSourceTree = LoadPatterns(folders_, 20);
  EXPECT_EQ(ofSourceTree.GetCurrentNumber(), 20);
  ASSERT_TRUE(AddPattern(ofSourceTree, picture_));
  EXPECT_TRUE(fs::exists(folders_.user / "pat21.gif"));
  EXPECT_EQ(LoadPatterns(folders_, 21).GetCurrentIndex(), 21);
}

TEST_F(AddPatterns, FailWithoutAnyFolder) {
  ASSERT_TRUE(WriteFile(folder_ / "data", std::vector<std::uint8_t>{1}));
  TSirdPatt library({folder_ / "nowhere", folders_.user});
  EXPECT_FALSE(AddPattern(library, picture_));
  TSirdPatt homeless({folder_ / "nowhere", {}});
  EXPECT_FALSE(AddPattern(homeless, picture_));
  TSirdPatt able(folders_);
  EXPECT_FALSE(AddPattern(able, IndexedImage()));
  EXPECT_EQ(library.GetCount() + homeless.GetCount() + able.GetCount(), 0);
  EXPECT_EQ(folder_.Count(), 2);
}

}  // namespace
}  // namespace plenovia
