#include "images/sird_patt.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "codec/gif.h"
#include "images/pattern_files.h"
#include "platform/file_io.h"
#include "testing/picture_compare.h"
#include "testing/temp_folder.h"

namespace plenovia {
namespace {

namespace fs = std::filesystem;

// A folder of `count` patterns, pattern n being n + 1 pixels wide.
class PatternFolder : public testing::Test {
 protected:
  void Make(int count, int missing = -1) {
    for (int n = 0; n < count; ++n) {
      if (n == missing) continue;
      Random random(static_cast<std::uint64_t>(n));
      const auto encoded = EncodeGif(RandomPicture(random, n + 1, 3, 16));
      ASSERT_TRUE(encoded);
      ASSERT_TRUE(WriteFile(folder_ / PatternFileName(n), encoded->pieces()));
    }
  }
  TSirdPatt Load(int start, int count) {
    tried_ = 0;
    return LoadPatterns(folder_.path(), user_.path(), start, count,
                        [this](int done, int all, bool) {
                          EXPECT_EQ(done, ++tried_);
                          EXPECT_LE(done, all);
                        });
  }

  TempFolder folder_;
  TempFolder user_;
  int tried_ = 0;
};

TEST_F(PatternFolder, LoadsAtLeastTwentyAndKeepsTheSelection) {
  Make(25);
  const TSirdPatt few = Load(7, 5);
  EXPECT_EQ(tried_, 20);
  EXPECT_EQ(few.GetCount(), 20);
  EXPECT_EQ(few.GetCurrentIndex(), 7);
  EXPECT_EQ(few.GetCurrentBitmap()->width(), 8);
  EXPECT_EQ(*few.GetCurrentPalette(), few.GetCurrentBitmap()->palette());
  EXPECT_EQ(Load(24, 25).GetCurrentIndex(), 24);
  EXPECT_EQ(Load(25, 25).GetCurrentIndex(), 0);
  EXPECT_EQ(Load(-1, 25).GetCurrentIndex(), 0);
}

TEST_F(PatternFolder, AMissingFileIsPassedOverAndResetsTheSelection) {
  Make(20, 3);
  ASSERT_TRUE(WriteFile(folder_ / PatternFileName(5), std::vector<std::uint8_t>{'G', 'I', 'F'}));
  TSirdPatt library = Load(7, 20);
  EXPECT_EQ(library.GetCount(), 18);
  EXPECT_EQ(library.GetCurrentIndex(), 0);

  EXPECT_FALSE(library.LoadPatternFile("pat03.gif"));
  EXPECT_EQ(library.GetCount(), 18);
  EXPECT_TRUE(library.LoadPatternFile(folder_ / "pat00.gif"));
  library.SelectPattern(18);
  EXPECT_EQ(library.GetCurrentIndex(), 18);
  EXPECT_EQ(library.GetCurrentBitmap()->width(), 1);
}

TEST_F(PatternFolder, AnEmptyLibraryHasNoPattern) {
  TSirdPatt library = Load(3, 20);
  library.SelectPattern(2);
  EXPECT_EQ(library.GetCount(), 0);
  EXPECT_EQ(library.GetCurrentIndex(), 0);
  EXPECT_EQ(library.GetCurrentBitmap(), nullptr);
  EXPECT_EQ(library.GetCurrentPalette(), nullptr);
}

TEST(PatternFiles, AreNamedByNumber) {
  EXPECT_EQ(PatternFileName(9), "pat09.gif");
  EXPECT_EQ(PatternFileName(10), "pat10.gif");
  EXPECT_EQ(PatternFileName(100), "pat100.gif");
}

TEST_F(PatternFolder, IsFoundFromTheProgram) {
  Make(1);
  const std::vector<std::string> homes = {"a/sirdspat", "b/share/plenovia/sirdspat", "c/sirdspat"};
  const std::vector<std::string> programs = {"a/program", "b/bin/program", "c/build/cli/program"};
  for (std::size_t i = 0; i < homes.size(); ++i) {
    EXPECT_FALSE(FindPatternFolder(folder_ / programs[i]));
    fs::create_directories(folder_ / homes[i]);
    fs::copy_file(folder_ / "pat00.gif", folder_ / homes[i] / "pat00.gif");
    EXPECT_EQ(FindPatternFolder(folder_ / programs[i]), folder_ / homes[i]);
  }
}

}  // namespace
}  // namespace plenovia
