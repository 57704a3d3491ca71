#include "images/sird_patt.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "codec/gif.h"
#include "images/pattern_edits.h"
#include "images/pattern_files.h"
#include "platform/file_io.h"
#include "testing/picture_compare.h"
#include "testing/temp_folder.h"

namespace plenovia {
namespace {

namespace fs = std::filesystem;

// Patterns of which number n is n + 1 pixels wide.
class PatternFolder : public testing::Test {
 protected:
  static void Write(const fs::path& folder, int number) {
    Random random(static_cast<std::uint64_t>(number));
    const auto encoded = EncodeGif(RandomPicture(random, number + 1, 3, 16));
    ASSERT_TRUE(encoded && WriteFile(folder / PatternFileName(number), encoded->pieces()));
  }
  void Make(int count) {
    for (int n = 0; n < count; ++n) Write(folder_.path(), n);
  }
  TSirdPatt Load(int start) {
    tried_ = 0;
    return LoadPatterns({folder_.path(), user_.path()}, start, [this](int done, int all, bool) {
      EXPECT_EQ(done, ++tried_);
      EXPECT_LE(done, all);
    });
  }

  TempFolder folder_;
  TempFolder user_;
  int tried_ = 0;
};

TEST_F(PatternFolder, LoadsAllAndKeepsTheSelection) {
  Make(25);
  const TSirdPatt library = Load(7);
  EXPECT_EQ(tried_, 25);
  EXPECT_EQ(library.GetCount(), 25);
  EXPECT_EQ(library.GetCurrentIndex(), 7);
  EXPECT_EQ(library.GetCurrentBitmap()->width(), 8);
  EXPECT_EQ(*library.GetCurrentPalette(), library.GetCurrentBitmap()->palette());
  EXPECT_EQ(Load(24).GetCurrentIndex(), 24);
  EXPECT_EQ(Load(25).GetCurrentIndex(), 0);
  EXPECT_EQ(Load(-1).GetCurrentIndex(), 0);
}

TEST_F(PatternFolder, WhatCanBeReadIsThereUnderItsNumber) {
  Make(20);
  for (const int missing : {0, 3, 19}) fs::remove(folder_ / PatternFileName(missing));
  ASSERT_TRUE(WriteFile(folder_ / PatternFileName(5), std::vector<std::uint8_t>{'G', 'I', 'F'}));
  for (const int added : {25, 21, 7}) Write(user_.path(), added);
  const TSirdPatt library = Load(21);
  EXPECT_EQ(tried_, 23);
  EXPECT_EQ(library.GetCount(), 19);
  EXPECT_EQ(library.GetCurrentNumber(), 21);
  EXPECT_EQ(library.GetCurrentIndex(), 17);
  EXPECT_EQ(library.GetCurrentBitmap()->width(), 22);
  EXPECT_EQ(Load(7).GetCurrentIndex(), 4);
  EXPECT_EQ(Load(5).GetCurrentNumber(), 1) << "the first one for a number that cannot be read";
}

TEST_F(PatternFolder, AnEmptyLibraryHasNoPattern) {
  TSirdPatt library = Load(3);
  EXPECT_EQ(tried_, 20);
  library.SelectPattern(2);
  EXPECT_EQ(library.GetCount(), 0);
  EXPECT_EQ(library.GetCurrentIndex(), 0);
  EXPECT_EQ(library.GetCurrentBitmap(), nullptr);
  EXPECT_EQ(library.GetCurrentPalette(), nullptr);
  EXPECT_FALSE(library.LoadPatternFile({3, folder_ / "pat03.gif"}));
  EXPECT_EQ(library.GetCount(), 0);
}

TEST(PatternFiles, AreNamedByNumber) {
  EXPECT_EQ(PatternFileName(9), "pat09.gif");
  EXPECT_EQ(PatternFileName(10), "pat10.gif");
  EXPECT_EQ(PatternFileName(100), "pat100.gif");
}

TEST_F(PatternFolder, IsFoundFromTheProgramByAnyOfItsFiles) {
  Write(folder_.path(), 7);
  const std::vector<std::string> homes = {"a/sirdspat", "b/share/plenovia/sirdspat", "c/sirdspat"};
  const std::vector<std::string> programs = {"a/program", "b/bin/program", "c/build/cli/program"};
  for (std::size_t i = 0; i < homes.size(); ++i) {
    EXPECT_TRUE(FindPatternFolders(folder_ / programs[i]).program.empty());
    fs::create_directories(folder_ / homes[i]);
    fs::copy_file(folder_ / "pat07.gif", folder_ / homes[i] / "pat07.gif");
    const PatternFolders found = FindPatternFolders(folder_ / programs[i]);
    EXPECT_EQ(found.program, folder_ / homes[i]);
    EXPECT_EQ(found.programTakesNew, i < 2) << "nothing is added to a source tree";
  }
}

TEST_F(PatternFolder, EditsAreUndoneAndTellTheirFiles) {
  Make(20);
  for (const int own : {20, 21}) Write(user_.path(), own);
  const auto file = [this](int number) { return user_ / PatternFileName(number); };
  const auto add = [&](TSirdPatt& library, PatternEdits& edits, int number) {
    const TSirdPatt before = library;
    Write(user_.path(), number);
    ASSERT_TRUE(library.LoadPatternFile({number, file(number)}));
    edits.Changed(before);
  };
  TSirdPatt library = Load(21);
  PatternEdits edits(library);
  const TSirdPatt before = library;
  library.RemovePattern(20);
  edits.Changed(before);
  EXPECT_EQ(library.GetCurrentNumber(), 21);
  EXPECT_TRUE(library.IsOwn(20));
  EXPECT_FALSE(library.IsOwn(19));
  add(library, edits, 22);
  add(library, edits, 23);
  edits.Undo();
  EXPECT_EQ(library.GetCount(), 22);
  EXPECT_EQ(edits.Dropped(), (std::vector{file(20), file(23)}));
  EXPECT_EQ(edits.Revert(), (std::vector{file(22), file(23)}));
  EXPECT_EQ(library.GetCount(), 22);
  EXPECT_EQ(library.GetFile(20), file(20));
}

}  // namespace
}  // namespace plenovia
