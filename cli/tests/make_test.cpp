// `sirds make` writes exactly what the engine makes of the same source and parameters.
#include <cmath>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <ostream>
#include <sstream>

#include "cli/tests/fixture.h"
#include "depthmap/depth_map_file.h"
#include "engine/generation.h"
#include "figures/sirdmath.h"
#include "testing/picture_compare.h"

namespace plenovia {

namespace {

struct Parameters {
  const char* name;
  std::vector<std::string> options;
  TSirdsSettings settings;
};

void PrintTo(const Parameters& parameters, std::ostream* out) {
  *out << parameters.name;
}

class Make : public SirdsTest, public testing::WithParamInterface<Parameters> {
 protected:
  RunInput Input() { return {pattern_, GetParam().settings, monitor_}; }

  // Runs the command and compares what it wrote.
  void Expect(const Result<IndexedImage>& expected, std::vector<std::string> arguments) {
    ASSERT_TRUE(expected.has_value());
    arguments.insert(arguments.begin(), "make");
    arguments.insert(arguments.end(), {"-o", out_, "--pattern", tile_, "-q"});
    const auto& options = GetParam().options;
    arguments.insert(arguments.end(), options.begin(), options.end());
    const Finished run = Sirds(arguments);
    ASSERT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(run.out + run.err, "");
    EXPECT_TRUE(SamePixels(*expected, Read(out_)));
    EXPECT_TRUE(SameColours(*expected, Read(out_)));
  }

  QuietMonitor monitor_;
};

TEST_P(Make, FromAPicture) {
  Expect(MakeSirdFromBitmap(picture_, 1.0, Input()), {scene_});
}

TEST_P(Make, FromADepthMap) {
  const auto map = ReadDepthMap(map_);
  ASSERT_TRUE(map.has_value());
  Expect(MakeSirdFromDepthMap(map->list, Input()), {map_});
}

TEST_P(Make, FromAFigure) {
  TSirdsSettings settings = GetParam().settings;
  settings.w = 250;
  settings.h = 120;
  settings.dx = -20;
  settings.dy = 10;
  settings.da = -30;
  const RunInput input{pattern_, settings, monitor_};
  const std::vector<std::string> moved{"figure:1", "--dx", "-20", "--dy", "10", "--da", "-30"};
  auto sized = moved;
  sized.insert(sized.end(), {"--width", "250", "--height", "120"});
  Expect(MakeSirdFromFigure({_GetFigureLevel, -2, nullptr, {}}, input), sized);
  auto backed = moved;
  backed.insert(backed.end(), {"--background", scene_});
  Expect(MakeSirdFromFigure({_GetFigureLevel, -2, &picture_, {}}, input), backed);
}

const Parameters kParameters[] = {
    {"Defaults", {}, {}},
    {"LeftToRight",
     {"--scan", "left-to-right", "--zmax", "255", "--markers"},
     {.zmax = 255, .scanMethod = kLeftToRight}},
    {"McMahon",
     {"--scan", "mcmahon", "--gap", "60", "--zmin", "-5", "--zmax", "90", "--threads", "1"},
     {.zmax = 90, .zmin = -5, .gapValue = 60}},
    {"Feucht",
     {"--scan", "feucht", "--no-markers", "--depth-by", "brightness", "--threads", "3"},
     {.depthSel = kDepthByBrightness, .marker = 0, .scanMethod = kFeucht}},
};
INSTANTIATE_TEST_SUITE_P(Parameters, Make, testing::ValuesIn(kParameters),
                         [](const auto& test) { return std::string(test.param.name); });

TEST_F(SirdsTest, WritesEachFormatByItsExtension) {
  QuietMonitor monitor;
  const TSirdsSettings settings;
  const auto expected = MakeSirdFromBitmap(picture_, 1.0, {pattern_, settings, monitor});
  ASSERT_TRUE(expected.has_value());
  const std::vector<std::pair<std::string, std::string>> kFormats = {
      {"out.bmp", "BMP"},  {"out.pcx", "PCX"},   {"out.gif", "GIF"}, {"a b.PNG", "PNG"},
      {"out.jpg", "JPEG"}, {"out.jpeg", "JPEG"}, {"é.x.jpg", "JPEG"}};
  for (const auto& [name, format] : kFormats) {
    const Finished run = Sirds({"make", scene_, "-o", Path(name), "--pattern", tile_});
    ASSERT_EQ(run.status, 0) << run.err;
    EXPECT_NE(Sirds({"info", Path(name)}).out.find("format: " + format + "\n"), std::string::npos);
    if (format == "JPEG") continue;
    EXPECT_TRUE(SamePixels(*expected, Read(Path(name)))) << name;
  }
}

TEST_F(SirdsTest, FitsTheDepthRangeAndPrintsItAsOptions) {
  const Finished fitted =
      Sirds({"make", scene_, "-o", out_, "--pattern", tile_, "--zmax", "5", "--fit"});
  ASSERT_EQ(fitted.status, 0) << fitted.err;
  std::vector<std::string> arguments = {"make", scene_, "-o", Path("set.png"), "--pattern", tile_};
  std::istringstream printed(fitted.out);
  for (std::string word; printed >> word;) arguments.push_back(word);
  ASSERT_EQ(arguments.size(), 10u);
  EXPECT_GT(std::stoi(arguments.back()), 5);
  ASSERT_EQ(Sirds(arguments).status, 0);
  EXPECT_TRUE(SamePixels(Read(out_), Read(Path("set.png"))));
}

TEST_F(SirdsTest, FitsFineLevelsUnlessARangeIsGiven) {
  const auto make = [&](std::vector<std::string> range) {
    std::vector<std::string> arguments = {"make", "formula:x*y", "-o",     out_,    "--pattern",
                                          tile_,  "--scan",      "smooth", "--gap", "40"};
    arguments.insert(arguments.end(), range.begin(), range.end());
    EXPECT_EQ(Sirds(arguments).status, 0);
    return Read(out_);
  };
  const IndexedImage fitted = make({});
  EXPECT_TRUE(SamePixels(fitted, make({"--zmin", "0", "--zmax", "383"})));
  EXPECT_FALSE(SamePixels(fitted, make({"--zmax", "300"})));
}

TEST_F(SirdsTest, FineLevelsGoFromFileToFileAndThroughAStereogram) {
  const auto run = [](const std::vector<std::string>& words) {
    const Finished finished = Sirds(words);
    EXPECT_EQ(finished.status, 0) << finished.err;
    return finished.out;
  };
  run({"depth", "formula:x", "-o", Path("a.png"), "--fine", "--width", "500", "--height", "60"});
  run({"depth", Path("a.png"), "-o", Path("b.pgm"), "--fine"});
  run({"depth", Path("b.pgm"), "-o", Path("c.png"), "--fine"});
  EXPECT_EQ(run({"info", Path("a.png")}), "format: PNG\nsize: 500x60\nlevels: 500\n");
  EXPECT_EQ(run({"info", Path("b.pgm")}), "format: PGM\nsize: 500x60\nlevels: 500\n");
  EXPECT_EQ(Contents("c.png"), Contents("a.png"));
  run({"depth", Path("b.pgm"), "-o", Path("half.pgm"), "--fine", "--height", "30"});
  EXPECT_EQ(run({"info", Path("half.pgm")}), "format: PGM\nsize: 250x30\nlevels: 250\n");

  run({"make", Path("a.png"), "-o", out_, "--scan", "smooth", "--no-markers"});
  run({"reveal", out_, "-o", Path("found.pgm"), "--fine", "--scan", "smooth", "--zmax", "383"});
  const std::string made = Contents("b.pgm");
  const std::string found = Contents("found.pgm");
  ASSERT_EQ(found.size(), made.size());
  const auto level = [](const std::string& file, std::size_t x, std::size_t y) {
    const std::size_t at = file.size() - 2 * ((59 - y) * 500 + 500 - x);
    return static_cast<std::uint8_t>(file[at]) * 256 + static_cast<std::uint8_t>(file[at + 1]);
  };
  double sum = 0;
  for (std::size_t x = 80; x < 420; ++x) {
    sum += std::pow((level(made, x, 30) - level(found, x, 30)) / 257.0, 2);
  }
  EXPECT_LT(std::sqrt(sum / 340), 2) << "levels";  // a tenth of a pixel is 0.8
}

TEST_F(SirdsTest, TextsAndModelsAreSourcesToo) {
  Write("wedge.obj", "v 0 0 0\nv 2 0 0\nv 2 1 0\nv 0 1 1\nf 1 2 3\nf 1 3 4\n");
  const std::string model = Path("wedge.obj");
  EXPECT_EQ(Sirds({"info", model}).out, "format: OBJ\ntriangles: 2\n");
  const auto depth = [&](std::vector<std::string> words) {
    words.insert(words.begin(), "depth");
    words.insert(words.end(), {"-o", Path("d.png"), "--width", "300", "--height", "200"});
    const Finished run = Sirds(words);
    EXPECT_EQ(run.status, 0) << run.err;
    return Read(Path("d.png"));
  };
  const IndexedImage front = depth({model});
  EXPECT_EQ(front.Row(0)[0], 0);
  EXPECT_GT(front.Row(130)[100], 0);
  EXPECT_FALSE(SamePixels(front, depth({model, "--view", "30,20", "--perspective", "40"})));
  EXPECT_TRUE(SamePixels(depth({"text:A\\nB"}), depth({"text:A\nB"})));
  // A recipe brings the shape back, fonts with blanks in their names too.
  const Finished made = Sirds({"make", "text:HI", "-o", out_, "--pattern", tile_, "--font",
                               "DejaVu Sans", "--profile", "round", "--width", "200"});
  ASSERT_EQ(made.status, 0) << made.err;
  const Finished again =
      Sirds({"make", "text:HI", "-o", Path("again.png"), "--pattern", tile_, "--like", out_});
  ASSERT_EQ(again.status, 0) << again.err;
  EXPECT_TRUE(SamePixels(Read(out_), Read(Path("again.png"))));
}

TEST_F(SirdsTest, ReplacesItsOwnSource) {
  ASSERT_EQ(Sirds({"make", scene_, "-o", out_, "--pattern", tile_}).status, 0);
  ASSERT_EQ(Sirds({"make", scene_, "-o", scene_, "--pattern", tile_}).status, 0);
  EXPECT_TRUE(SamePixels(Read(out_), Read(scene_)));
}

TEST_F(SirdsTest, TakesNamesThatBeginWithADash) {
  const auto home = std::filesystem::current_path();
  std::filesystem::current_path(folder_.path());
  std::filesystem::copy_file("scene.bmp", "-scene.bmp");
  EXPECT_EQ(Sirds({"make", "-o", "-out.png", "--pattern", tile_, "--", "-scene.bmp"}).status, 0);
  EXPECT_TRUE(std::filesystem::exists("-out.png"));
  std::filesystem::current_path(home);
}

}  // namespace

}  // namespace plenovia
