// Each picture of the gallery is what its command makes, and its depth is found again in it,
// without knowing anything about it but the scan method's anchor.

#include <filesystem>
#include <fstream>
#include <map>
#include <ostream>
#include <sstream>
#include <string>
#include <vector>

#include "cli/tests/fixture.h"
#include "codec/graph_io.h"
#include "engine/depth_source.h"
#include "engine/reveal.h"
#include "engine/tests/stereogram_truth.h"
#include "testing/picture_compare.h"

namespace plenovia {
namespace {

namespace fs = std::filesystem;

constexpr double kEnough = 0.97;

// A line "sirds make SOURCE -o NAME --option value ..." of the gallery's page.
struct Command {
  explicit Command(const std::string& line) {
    std::istringstream words(line);
    std::string skipped;
    words >> skipped >> skipped >> source >> skipped >> name;
    for (std::string option, value; words >> option >> value;) options[option] = value;
  }
  std::string source;
  std::string name;
  std::map<std::string, std::string> options;

  // The arguments of a subcommand on this source, with the options that it takes: all, if none are
  // named.
  std::vector<std::string> Arguments(const std::string& subcommand, const std::string& out,
                                     const std::string& taken) const {
    std::vector<std::string> arguments{subcommand, source, "-o", out};
    for (const auto& [option, value] : options) {
      if (!taken.empty() && taken.find(option + " ") == std::string::npos) continue;
      arguments.insert(arguments.end(), {option, value});
    }
    return arguments;
  }
  StereogramRule Rule() const {
    const auto number = [&](const std::string& option, std::int32_t standard) {
      const auto given = options.find(option);
      return given == options.end() ? standard : std::stoi(given->second);
    };
    StereogramRule rule;
    rule.settings.gapValue = number("--gap", rule.settings.gapValue);
    rule.settings.zmin = number("--zmin", rule.settings.zmin);
    rule.settings.zmax = number("--zmax", rule.settings.zmax);
    if (const auto scan = options.find("--scan"); scan != options.end()) {
      const auto named = [&](const ScanMethod* method) { return method->name == scan->second; };
      const auto place = std::ranges::find_if(ScanMethods(), named) - ScanMethods().begin();
      rule.settings.scanMethod = static_cast<std::int32_t>(place) + 1;
    }
    const bool shapes = IsFigure() || source.ends_with(".rds");
    rule.kind = shapes ? SourceKind::kShape : SourceKind::kImage;
    return rule;
  }
  bool IsFigure() const { return source.starts_with("figure:"); }
};

void PrintTo(const Command& command, std::ostream* out) {
  *out << command.name;
}

std::vector<Command> Gallery() {
  std::vector<Command> commands;
  std::ifstream page(fs::path(PLENOVIA_SOURCE_DIR) / "docs/gallery.md");
  for (std::string line; std::getline(page, line);) {
    if (line.starts_with("sirds make ")) commands.emplace_back(line);
  }
  return commands;
}

class GalleryPicture : public testing::TestWithParam<Command> {
 protected:
  GalleryPicture() { fs::current_path(PLENOVIA_SOURCE_DIR); }

  // What the program writes for the command's source.
  IndexedImage Written(const std::string& subcommand, const std::string& taken = "") const {
    const std::string out = (folder_ / "out.png").string();
    const Finished run = Sirds(GetParam().Arguments(subcommand, out, taken));
    EXPECT_EQ(run.status, 0) << run.err;
    return TGraphIO().Read_File(out).value();
  }
  // The levels of the source in the place where they are shifted.
  LevelPicture Levels(const StereogramRule& rule) const {
    const IndexedImage depth = Written("depth", "--depth-by --width --height --dx --dy --da ");
    const ScanMethod& method = ScanMethodOf(rule.settings.scanMethod);
    const std::int32_t gap = rule.settings.gapValue;
    const int start = method.StartColumn(gap);
    const int width = GetParam().IsFigure() ? depth.width() : method.RunWidth(depth.width(), gap);
    return {width, depth.height(), [&](int x, int y) -> std::int32_t {
              const int from = x - start;
              if (from < 0 || from >= depth.width()) return 0;
              return depth.Row(y)[static_cast<std::size_t>(from)];
            }};
  }

  TempFolder folder_;
};

TEST_P(GalleryPicture, IsWhatItsCommandMakesAndHasItsDepth) {
  const IndexedImage shown = TGraphIO().Read_File("docs/gallery/" + GetParam().name).value();
  const IndexedImage made = Written("make");
  EXPECT_TRUE(SamePixels(made, shown));
  EXPECT_TRUE(SameColours(made, shown));

  const StereogramRule rule = GetParam().Rule();
  QuietMonitor monitor;
  const RevealAnchor anchor = ScanMethodOf(rule.settings.scanMethod).anchor;
  const auto revealed = Reveal(shown, {.anchor = anchor}, monitor);
  ASSERT_TRUE(revealed);
  const RevealScore score = ScoreReveal(*revealed, Levels(rule), rule);
  EXPECT_GT(score.counted, shown.width() * shown.height() / 5);
  EXPECT_GE(score.Fraction(), kEnough);
}

INSTANTIATE_TEST_SUITE_P(All, GalleryPicture, testing::ValuesIn(Gallery()));

TEST(Gallery, HasTwelvePictures) {
  EXPECT_EQ(Gallery().size(), 12u);
}

}  // namespace
}  // namespace plenovia
