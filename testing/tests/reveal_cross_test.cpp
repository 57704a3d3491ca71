// Every figure and every shipped pattern gives stereograms in which the depth can be found again,
// with every scan method and the default parameters.

#include <gtest/gtest.h>

#include <filesystem>
#include <span>
#include <string>

#include "codec/gif_intf.h"
#include "engine/depth_source.h"
#include "engine/generation.h"
#include "engine/reveal.h"
#include "engine/separation.h"
#include "engine/tests/stereogram_truth.h"
#include "figures/sirdmath.h"

namespace plenovia {
namespace {

constexpr double kEnough = 0.97;
constexpr int kPatterns = 20;

class NoMonitor : public RunMonitor {
 public:
  void OnProgress(ProgressPhase, const ProgressInfo&) override {}
  bool StopRequested() override { return false; }
};

IndexedImage Pattern(int number) {
  const std::string digits = std::to_string(number);
  const std::string name = "pat" + std::string(2 - digits.size(), '0') + digits + ".gif";
  return TGifIntf::Read_File(std::filesystem::path(SHIPPED_TILES) / name).value();
}

std::string Title(int figure) {
  char title[40];
  _GetFigureTitle(figure, title, sizeof(title));
  return title;
}

class RevealShipped : public testing::TestWithParam<ScanMethod> {
 protected:
  RevealShipped() { rule_.settings.scanMethod = GetParam(); }

  // How much of a figure's depth is found in its stereogram.
  double Found(int figure, const IndexedImage& pattern) {
    const TSirdsSettings& settings = rule_.settings;
    const std::int32_t code = -(figure + 1);
    LevelPicture levels(settings.w, settings.h);
    for (int y = 0; y < settings.h; ++y) {
      BuildFigureDepthRow(std::span(levels.levels)
                              .subspan(levels.Index(0, y), static_cast<std::size_t>(settings.w)),
                          _GetFigureLevel, code, settings.h - 1 - y, settings.w, settings.h,
                          settings);
    }
    FigureRun run;
    run.level = _GetFigureLevel;
    run.code = code;
    NoMonitor monitor;
    const IndexedImage picture = MakeSirdFromFigure(run, {pattern, settings, monitor}).value();
    const auto separation = [&](int level) {
      return static_cast<int>(SeparationFromLevel(level, settings, rule_.kind, settings.w));
    };
    const RevealOptions options{.anchor = AnchorOf(settings.scanMethod),
                                .smallest = separation(25),
                                .largest = separation(0) + 2};
    const RevealScore score = ScoreReveal(Reveal(picture, options, monitor).value(), levels, rule_);
    EXPECT_GT(score.counted, settings.w * settings.h / 8) << Title(figure);
    return score.Fraction();
  }

  StereogramRule rule_;
};

TEST_P(RevealShipped, FindsEveryFigureInDots) {
  const IndexedImage pattern = Pattern(0);
  _InitFigureTitles();
  for (int figure = 0; figure < _GetFigureCount(); ++figure) {
    EXPECT_GE(Found(figure, pattern), kEnough) << Title(figure);
  }
  _UnloadFigureTitles();
}

TEST_P(RevealShipped, FindsAFigureInEveryPattern) {
  for (int number = 0; number < kPatterns; ++number) {
    EXPECT_GE(Found(number, Pattern(number)), kEnough) << "pattern " << number;
  }
}

INSTANTIATE_TEST_SUITE_P(Methods, RevealShipped, testing::Values(kLeftToRight, kMcMahon, kFeucht));

}  // namespace
}  // namespace plenovia
