// Failures: one line that names what is wrong, the right exit status, and nothing left behind.
#include <sys/resource.h>
#include <sys/stat.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <ostream>
#include <thread>

#include "cli/tests/fixture.h"

namespace plenovia {

namespace {

// In the arguments "@" stands for the test's folder.
struct Wrong {
  const char* name;
  std::vector<std::string> arguments;
  int status;
  std::vector<std::string> told;
};

void PrintTo(const Wrong& wrong, std::ostream* out) {
  *out << wrong.name;
}

class Errors : public SirdsTest, public testing::WithParamInterface<Wrong> {
 protected:
  std::string Expanded(std::string text) const {
    const auto at = text.find('@');
    return at == std::string::npos ? text : text.replace(at, 1, folder_.path().string());
  }
};

TEST_P(Errors, AreToldInOneLineAndLeaveNothingBehind) {
  Write("empty.bmp", "");
  Write("text.png", "This is no picture.\n");
  std::string huge = Contents("scene.bmp");
  huge.replace(18, 8, std::string("\xff\x7f\0\0\xff\x3f\0\0", 8));  // 32767 x 16383 pixels
  Write("huge.bmp", huge);
  Write("old.png", "old");
  ASSERT_EQ(mkfifo(Path("fifo").c_str(), 0600), 0);
  std::filesystem::create_directory(Path("folder.png"));
  const int before = folder_.Count();

  std::vector<std::string> arguments;
  for (const std::string& argument : GetParam().arguments) arguments.push_back(Expanded(argument));
  const Finished run = Sirds(arguments);

  EXPECT_EQ(run.status, GetParam().status) << run.err;
  EXPECT_EQ(run.out, "");
  EXPECT_TRUE(run.err.starts_with("sirds: ")) << run.err;
  EXPECT_EQ(std::count(run.err.begin(), run.err.end(), '\n'), 1) << run.err;
  for (const std::string& text : GetParam().told) {
    EXPECT_NE(run.err.find(Expanded(text)), std::string::npos) << run.err << " lacks " << text;
  }
  EXPECT_EQ(folder_.Count(), before);
  EXPECT_EQ(Contents("old.png"), "old");
}

const Wrong kUsage[] = {
    {"NoCommand", {}, 2, {"--help"}},
    {"UnknownCommand", {"draw"}, 2, {}},
    {"UnknownOption", {"make", "@/scene.bmp", "-o", "@/out.png", "--zoom", "2"}, 2, {"--zoom"}},
    {"MissingSource", {"make", "-o", "@/out.png"}, 2, {"SOURCE", "'sirds make --help'"}},
    {"MissingOut", {"make", "@/scene.bmp"}, 2, {"-o"}},
    {"MissingValue", {"make", "@/scene.bmp", "-o", "@/out.png", "--gap"}, 2, {"--gap"}},
    {"TwoSources", {"make", "@/scene.bmp", "@/map.rds", "-o", "@/out.png"}, 2, {"map.rds"}},
    {"UnknownExtension", {"make", "@/scene.bmp", "-o", "@/out.tif"}, 2, {"out.tif", ".png"}},
    {"NoExtension", {"depth", "@/scene.bmp", "-o", "@/png"}, 2, {"png"}},
    {"StereogramInPgm", {"make", "@/scene.bmp", "-o", "@/out.pgm"}, 2, {"out.pgm"}},
    {"SmallGap", {"make", "@/scene.bmp", "-o", "@/out.png", "--gap", "1"}, 2, {"2 to 4096"}},
    {"HugeGap", {"make", "@/scene.bmp", "-o", "@/o.png", "--gap", "9999999999"}, 2, {"4096"}},
    {"NoNumber", {"make", "@/scene.bmp", "-o", "@/out.png", "--gap", "12x"}, 2, {"12x"}},
    {"NoMethod", {"make", "@/scene.bmp", "-o", "@/o.png", "--scan", "up"}, 2, {"mcmahon"}},
    {"Range", {"make", "@/scene.bmp", "-o", "@/o.png", "--zmin", "70"}, 2, {"70", "63"}},
    {"FigureOption", {"make", "@/scene.bmp", "-o", "@/o.png", "--dx", "-5"}, 2, {"--dx"}},
    {"FormulaOption",
     {"depth", "figure:1", "-o", "@/o.png", "--reach", "5"},
     2,
     {"--reach", "formulas"}},
    {"FineJpeg", {"depth", "figure:1", "-o", "@/o.jpg", "--fine"}, 2, {"--fine", ".png"}},
    {"NearOfPicture", {"depth", "@/scene.bmp", "-o", "@/o.png", "--near", "dark"}, 2, {"--near"}},
    {"FontOfFormula",
     {"make", "formula:x", "-o", "@/o.png", "--font", "a"},
     2,
     {"--font", "texts"}},
    {"HalfView", {"make", "@/a.stl", "-o", "@/o.png", "--view", "30"}, 2, {"--view", "30,20"}},
    {"WildView", {"make", "@/a.stl", "-o", "@/o.png", "--view", "30,nan"}, 2, {"--view"}},
    {"NoFormula", {"make", "formula:", "-o", "@/o.png"}, 2, {"formula: "}},
    {"WrongFormula", {"depth", "formula:sin(x", "-o", "@/o.png"}, 2, {"parenthesis"}},
    {"TwoSizes",
     {"make", "figure:0", "-o", "@/o.png", "--background", "@/scene.bmp", "--width", "9"},
     2,
     {"--width"}},
    {"NoSuchFigure", {"make", "figure:9999", "-o", "@/o.png"}, 2, {"figure:9999"}},
    {"NoSuchTitle", {"depth", "figure:qqq", "-o", "@/o.png"}, 2, {"figure:qqq"}},
    {"NoSuchPattern", {"make", "@/scene.bmp", "-o", "@/o.png", "--pattern", "999"}, 2, {"999"}},
};
INSTANTIATE_TEST_SUITE_P(Usage, Errors, testing::ValuesIn(kUsage),
                         [](const auto& test) { return std::string(test.param.name); });

const Wrong kFiles[] = {
    {"Missing", {"make", "@/none.bmp", "-o", "@/old.png"}, 1, {"@/none.bmp: "}},
    {"Nothing", {"make", "formula:sqrt(-1)", "-o", "@/old.png"}, 1, {"formula: "}},
    {"NoFont", {"make", "text:A", "-o", "@/old.png", "--font", "No Such"}, 1, {"\"No Such\""}},
    {"NoLetters", {"make", "text:", "-o", "@/old.png"}, 1, {"text: "}},
    {"Folder", {"make", "@", "-o", "@/out.png"}, 1, {"@: The file is a directory."}},
    {"Device", {"make", "/dev/null", "-o", "@/out.png"}, 1, {"/dev/null: "}},
    {"Fifo", {"info", "@/fifo"}, 1, {"@/fifo: "}},
    {"Empty", {"make", "@/empty.bmp", "-o", "@/out.png"}, 1, {"@/empty.bmp: "}},
    {"Text", {"depth", "@/text.png", "-o", "@/out.pgm"}, 1, {"@/text.png: "}},
    {"Lying", {"reveal", "@/huge.bmp", "-o", "@/out.png"}, 1, {"@/huge.bmp: "}},
    {"Pattern",
     {"make", "@/scene.bmp", "-o", "@/old.png", "--pattern", "@/text.png"},
     1,
     {"@/text.png: "}},
    {"Background",
     {"make", "figure:0", "-o", "@/old.png", "--background", "@/none.png", "--pattern",
      "@/tile.gif"},
     1,
     {"@/none.png: "}},
    {"OutIsFolder",
     {"make", "@/scene.bmp", "-o", "@/folder.png", "--pattern", "@/tile.gif"},
     1,
     {"@/folder.png: "}},
    {"OutNowhere",
     {"make", "@/scene.bmp", "-o", "@/no/out.png", "--pattern", "@/tile.gif"},
     1,
     {"@/no/out.png: "}},
    {"ControlsInName", {"info", "no\nsuch\xc2\x9bmap\xc3\x9b"}, 1, {"no?such??map\xc3\x9b: "}},
    {"MapAsStereogram", {"reveal", "@/map.rds", "-o", "@/out.png"}, 1, {"@/map.rds: "}},
};
INSTANTIATE_TEST_SUITE_P(Files, Errors, testing::ValuesIn(kFiles),
                         [](const auto& test) { return std::string(test.param.name); });

TEST_F(SirdsTest, DamagedSourcesAreUsedWithAWarning) {
  Write("cut.bmp", Contents("scene.bmp").substr(0, 2000));
  Write("cut.txt", Contents("map.rds").substr(0, 60));
  for (const std::string name : {"cut.bmp", "cut.txt"}) {
    const Finished run = Sirds({"depth", Path(name), "-o", Path("out.png"), "--threads", "1"});
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_TRUE(run.err.starts_with("sirds: warning: " + Path(name) + ": The ")) << run.err;
    EXPECT_EQ(std::count(run.err.begin(), run.err.end(), '\n'), 1) << run.err;
  }
}

TEST_F(SirdsTest, ALimitOnFileSizesIsAFailure) {
  Write("old.bmp", "old");
  const int before = folder_.Count();
  rlimit usual{};
  ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &usual), 0);
  const rlimit small{1024, usual.rlim_max};
  ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
  const Finished run = Sirds({"make", scene_, "-o", Path("old.bmp"), "--pattern", tile_});
  setrlimit(RLIMIT_FSIZE, &usual);
  EXPECT_EQ(run.status, 1) << run.err;
  EXPECT_NE(run.err.find("old.bmp: The file cannot be written"), std::string::npos) << run.err;
  EXPECT_EQ(folder_.Count(), before);
  EXPECT_EQ(Contents("old.bmp"), "old");
}

class Stopping : public SirdsTest, public testing::WithParamInterface<int> {};

TEST_P(Stopping, EndsALongRunAndLeavesNothing) {
  Write("old.png", "old");
  const int before = folder_.Count();
  Process run(
      {"depth", "figure:0", "-o", Path("old.png"), "--width", "20000", "--height", "20000"});
  std::this_thread::sleep_for(std::chrono::milliseconds(300));
  run.Signal(GetParam());
  const auto start = std::chrono::steady_clock::now();
  const Finished finished = run.Wait();
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(2));
  EXPECT_EQ(finished.status, 1);
  EXPECT_TRUE(finished.err.starts_with("sirds: ")) << finished.err;
  EXPECT_NE(finished.err.find("The run was stopped."), std::string::npos) << finished.err;
  EXPECT_EQ(folder_.Count(), before);
  EXPECT_EQ(Contents("old.png"), "old");
}

INSTANTIATE_TEST_SUITE_P(Signals, Stopping, testing::Values(SIGINT, SIGTERM));

}  // namespace

}  // namespace plenovia
