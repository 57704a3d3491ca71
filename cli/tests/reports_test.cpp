// The commands that tell and show: depth, reveal, figures, patterns and info.
#include <array>
#include <cstdlib>
#include <sstream>

#include "cli/tests/fixture.h"
#include "depthmap/depth_map_file.h"
#include "engine/depth_source.h"
#include "figures/sirdmath.h"
#include "testing/picture_compare.h"

namespace plenovia {

namespace {

using Reports = SirdsTest;

TEST_F(Reports, DepthOfAPictureIsTheLevelOfEachPixel) {
  for (const bool brightness : {false, true}) {
    const Finished run = Sirds(
        {"depth", scene_, "-o", out_, "--depth-by", brightness ? "brightness" : "color", "-q"});
    ASSERT_EQ(run.status, 0) << run.err;
    IndexedImage expected = picture_;
    for (std::uint8_t& pixel : expected.pixels()) {
      pixel = static_cast<std::uint8_t>(
          PixelLevel(pixel, picture_.palette(), brightness ? kDepthByBrightness : kDepthByColor));
    }
    EXPECT_TRUE(SamePixels(expected, Read(out_)));
  }
}

TEST_F(Reports, DepthOfAMapIsTheLevelOfEachPoint) {
  const auto map = ReadDepthMap(map_);
  ASSERT_TRUE(map.has_value());
  ASSERT_EQ(Sirds({"depth", map_, "-o", out_}).status, 0);
  const IndexedImage depth = Read(out_);
  ASSERT_EQ(depth.width(), map->list.GridWidth());
  ASSERT_EQ(depth.height(), map->list.GridHeight());
  for (int y = 0; y < depth.height(); ++y) {
    for (int x = 0; x < depth.width(); ++x) {
      ASSERT_EQ(depth.Row(y)[static_cast<std::size_t>(x)], map->list.GetLevelAt(x, y));
    }
  }
}

TEST_F(Reports, DepthOfAFigureIsWhatTheLibraryGives) {
  constexpr int kWidth = 91;
  constexpr int kHeight = 64;
  ASSERT_EQ(Sirds({"depth", "figure:2", "-o", Path("out.pgm"), "--width", "91", "--height", "64",
                   "--dx", "7", "--dy", "-3", "--da", "25"})
                .status,
            0);
  const std::string pgm = Contents("out.pgm");
  const std::string header = "P5\n91 64\n255\n";
  ASSERT_EQ(pgm.substr(0, header.size()), header);
  ASSERT_EQ(pgm.size(), header.size() + kWidth * kHeight);
  auto pixel = pgm.begin() + static_cast<std::ptrdiff_t>(header.size());
  for (int y = 0; y < kHeight; ++y) {
    for (int x = 0; x < kWidth; ++x) {
      ASSERT_EQ(static_cast<unsigned char>(*pixel++),
                _GetFigureLevel(x - 7, kHeight - 1 - y + 3, kWidth / 2, kHeight / 2, 25, -3))
          << x << ", " << y;
    }
  }
}

TEST_F(Reports, RevealFindsTheLevelsThatWereHidden) {
  ASSERT_EQ(Sirds({"make", scene_, "-o", out_, "--gap", "80", "--pattern", tile_}).status, 0);
  const Finished run = Sirds({"reveal", out_, "-o", Path("found.png"), "--gap", "80"});
  ASSERT_EQ(run.status, 0) << run.err;
  double share = 0;
  ASSERT_EQ(std::sscanf(run.out.c_str(), "certain: %lf %%\n", &share), 1) << run.out;
  EXPECT_GT(share, 80);
  EXPECT_LE(share, 100);

  // A picture lies half a gap to the right in its stereogram; steps of one level are too fine to
  // be seen at this gap.
  const IndexedImage found = Read(Path("found.png"));
  int near = 0;
  int all = 0;
  for (int y = 0; y < found.height(); ++y) {
    for (int x = 90; x < found.width(); ++x) {
      const int level = picture_.Row(y)[static_cast<std::size_t>(x - 40)];
      near += std::abs(found.Row(y)[static_cast<std::size_t>(x)] - level) <= 3;
      ++all;
    }
  }
  EXPECT_GT(near, all * 8 / 10);

  ASSERT_EQ(Sirds({"reveal", out_, "-o", Path("seen.pgm")}).status, 0);
  const std::string seen = Contents("seen.pgm");
  EXPECT_NE(seen.find('\xff'), std::string::npos);  // the nearest is white at any level
}

TEST_F(Reports, ListsTheFigures) {
  const Finished run = Sirds({"figures"});
  EXPECT_EQ(run.status, 0);
  std::string expected;
  for (int i = 0; i < _GetFigureCount(); ++i) {
    std::array<char, 40> title{};
    _GetFigureTitle(i, title.data(), static_cast<int>(title.size()));
    expected += std::to_string(i) + "\t" + title.data() + "\n";
  }
  EXPECT_EQ(run.out, expected);

  // A figure goes by its number and by its title, however it is written.
  const std::string title = run.out.substr(2, run.out.find('\n') - 2);
  std::string loud = title;
  for (char& c : loud) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
  ASSERT_EQ(Sirds({"depth", "figure:0", "-o", out_}).status, 0);
  for (const std::string& name : {title, loud}) {
    ASSERT_EQ(Sirds({"depth", "figure:" + name, "-o", Path("named.png")}).status, 0) << name;
    EXPECT_EQ(Contents("named.png"), Contents("out.png"));
  }
}

TEST_F(Reports, ListsThePatternsThatMakeTakes) {
  std::istringstream lines(Sirds({"patterns"}).out);
  int number = -1;
  int count = 0;
  for (std::string file, size; lines >> number >> file >> size; ++count) {
    EXPECT_EQ(number, count);
    EXPECT_EQ(file, (count < 10 ? "pat0" : "pat") + std::to_string(count) + ".gif");
    EXPECT_NE(size.find('x'), std::string::npos);
  }
  EXPECT_GE(count, 20);
  EXPECT_EQ(Sirds({"make", scene_, "-o", out_, "--pattern", std::to_string(count - 1)}).status, 0);
  EXPECT_EQ(Sirds({"make", scene_, "-o", out_, "--pattern", std::to_string(count)}).status, 2);
}

TEST_F(Reports, TellsWhatAFileIs) {
  EXPECT_EQ(Sirds({"info", scene_}).out, "format: BMP\nsize: 300x150\ncolours: " +
                                             std::to_string(picture_.palette().size()) + "\n");
  EXPECT_EQ(Sirds({"info", map_}).out, "format: RDS\nsize: 240x130\nobjects: 2\n");
}

}  // namespace

}  // namespace plenovia
