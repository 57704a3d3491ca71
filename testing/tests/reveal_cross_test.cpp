// Every figure, every shipped pattern and every sample gives stereograms in which the depth can be
// found again, with every scan method and the default parameters.

#include <gtest/gtest.h>

#include <filesystem>
#include <span>
#include <string>

#include "codec/graph_io.h"
#include "depthmap/depth_map_file.h"
#include "engine/depth_source.h"
#include "engine/fit_depth_range.h"
#include "engine/generation.h"
#include "engine/reveal.h"
#include "engine/separation.h"
#include "engine/tests/stereogram_truth.h"
#include "figures/sirdmath.h"
#include "testing/tests/cross_parts.h"

namespace plenovia {
namespace {

constexpr double kEnough = 0.97;
constexpr int kPatterns = 20;

std::string Title(int figure) {
  char title[40];
  _GetFigureTitle(figure, title, sizeof(title));
  return title;
}

class RevealShipped : public testing::TestWithParam<ScanMethodNumber> {
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
    QuietMonitor monitor;
    const IndexedImage picture = MakeSirdFromFigure(run, {pattern, settings, monitor}).value();
    const auto separation = [&](int level) {
      return static_cast<int>(SeparationFromLevel(level, settings, rule_.kind, settings.w));
    };
    const RevealOptions options{.anchor = ScanMethodOf(settings.scanMethod).anchor,
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

TEST_P(RevealShipped, FindsEverySampleInTheFittedRange) {
  const std::filesystem::path samples = SHIPPED_SAMPLES;
  const IndexedImage pattern = Pattern(0);
  QuietMonitor monitor;
  TSirdsSettings& settings = rule_.settings;
  const TSirdsSettings defaults = settings;
  const ScanMethod& method = ScanMethodOf(settings.scanMethod);
  const int start = method.StartColumn(settings.gapValue);
  int count = 0;
  for (const auto& entry : std::filesystem::directory_iterator(samples)) {
    const std::string kind = entry.path().extension();
    const bool map = kind == ".rds";
    if (!map && kind != ".png" && kind != ".jpg") continue;
    ++count;
    settings = defaults;
    settings.marker = 0;
    rule_.kind = map ? SourceKind::kShape : SourceKind::kImage;
    const TDepthList list = map ? ReadDepthMap(entry.path()).value().list : TDepthList(1, 1);
    const IndexedImage picture = map ? IndexedImage() : TGraphIO().Read_File(entry.path()).value();
    const LevelRange levels = map ? LevelsOf(list) : LevelsOf(picture, settings.depthSel);
    const FittedRange range = FitDepthRange(levels, rule_.kind, settings);
    settings.zmin = range.zmin;
    settings.zmax = range.zmax;
    const RunInput input{pattern, settings, monitor};
    const IndexedImage made =
        (map ? MakeSirdFromDepthMap(list, input) : MakeSirdFromBitmap(picture, 1.0, input)).value();

    LevelPicture truth(method.RunWidth(made.width(), settings.gapValue), made.height());
    for (int y = 0; y < made.height(); ++y) {
      const auto width = static_cast<std::size_t>(truth.width);
      const auto row = std::span(truth.levels).subspan(truth.Index(0, y), width);
      const int line = made.height() - 1 - y;
      if (map)
        BuildMapDepthRow(row, list, line, start);
      else
        PictureDepth(picture, 1.0, start, settings.depthSel).BuildRow(line, row);
    }
    const auto found = Reveal(made, {.anchor = method.anchor}, monitor).value();
    const RevealScore score = ScoreReveal(found, truth, rule_);
    EXPECT_GT(score.counted, made.width() * made.height() / 8) << entry.path();
    EXPECT_GE(score.Fraction(), kEnough) << entry.path() << ' ' << range.notice;
  }
  EXPECT_EQ(count, 7);
}

INSTANTIATE_TEST_SUITE_P(Methods, RevealShipped,
                         testing::Values(kLeftToRight, kMcMahon, kFeucht, kSmooth));

}  // namespace
}  // namespace plenovia
