// What is made for Live View: the same stereogram as by a run, in the size of the pane, and the
// other views.

#include <gtest/gtest.h>

#include <vector>

#include "engine/ui/sird_run.h"
#include "figures/sirdmath.h"
#include "live/ui/live_maker.h"
#include "platform/random.h"
#include "viewing/level_snapshot.h"

namespace plenovia {
namespace {

class Quiet final : public RunMonitor {
 public:
  void OnProgress(ProgressPhase, const ProgressInfo&) override {}
  bool StopRequested() override { return stops; }
  bool stops = false;
};

std::shared_ptr<const IndexedImage> Noise(int width, int height) {
  Random random(3);
  auto picture = IndexedImage::Create(width, height, Palette::Grays(32)).value();
  for (auto& pixel : picture.pixels()) pixel = static_cast<std::uint8_t>(random.Int(0, 31));
  return std::make_shared<const IndexedImage>(std::move(picture));
}

std::shared_ptr<const LevelGrid> Steps(int width, int height) {
  LevelField field(width, height);
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) field.Row(y)[static_cast<std::size_t>(x)] = x * 6 / width * 8;
  }
  return LevelSnapshot::Of(field);
}

class LiveMakerTest : public testing::Test {
 protected:
  LiveMakerTest() {
    request_.pattern = Noise(64, 64);
    request_.pane = {300, 200};
    request_.fit = false;
    request_.millimetresPerPixel = 0.25;
  }

  std::vector<LivePicture> Make() {
    std::vector<LivePicture> made;
    maker_.Make(request_, quiet_, [&](LivePicture p) { made.push_back(std::move(p)); });
    return made;
  }
  SirdRun Run() const {
    const LiveSource& source = request_.source;
    if (source.picture) {
      return RunFromPicture(source.picture, source.zoom, request_.pattern, request_.settings);
    }
    if (source.levels) return RunFromMap(source.levels, request_.pattern, request_.settings);
    return RunFromFigure(source.figure, nullptr, source.title, request_.pattern, request_.settings);
  }

  LiveRequest request_;
  LiveMaker maker_;
  Quiet quiet_;
};

TEST_F(LiveMakerTest, DotForDotItIsTheStereogramOfTheRun) {
  _InitFigureTitles();
  const LiveSource sources[] = {{.picture = Noise(410, 290)},
                                {.picture = Noise(200, 150), .zoom = 1.7},
                                {.levels = Steps(500, 120)},
                                {.figure = -3, .title = QStringLiteral("Figure")}};
  Random random(8);
  for (const LiveSource& source : sources) {
    request_.source = source;
    for (std::int32_t method = kLeftToRight; method <= kSmooth; ++method) {
      TSirdsSettings& settings = request_.settings;
      settings.scanMethod = method;
      settings.gapValue = random.Int(60, 120);
      settings.depthSel = random.Int(kDepthByColor, kDepthByBrightness);
      settings.fitRange = random.Int(0, 1);
      settings.zmax = random.Int(20, 100);
      settings.dx = random.Int(-30, 30);
      settings.da = random.Int(-180, 180);
      for (const int marker : {0, 1}) {  // the second time with what was kept
        settings.marker = marker;
        const auto made = Make();
        ASSERT_EQ(made.size(), 1U);
        EXPECT_EQ(*made[0].stereogram, Run().Make(quiet_).value()) << source.figure << method;
      }
    }
  }
}

TEST_F(LiveMakerTest, FittedItHasTheSizeOfThePaneAndTheGapAsSet) {
  request_.fit = true;
  request_.source = {.levels = LevelSnapshot::Of(LevelField(1200, 400))};
  request_.settings.marker = 0;
  const auto large = Make();
  EXPECT_EQ(large[0].stereogram->width(), 300);
  EXPECT_EQ(large[0].stereogram->height(), 100);
  const auto row = large[0].stereogram->Row(50);
  int repeated = 0;
  for (std::size_t x = 200; x < 230; ++x) repeated += row[x] == row[x - 100];
  EXPECT_EQ(repeated, 30) << "the ground repeats at the gap";

  request_.source = {.levels = Steps(250, 100)};
  const auto small = Make();
  EXPECT_EQ(*small[0].stereogram, Run().Make(quiet_).value());
}

TEST_F(LiveMakerTest, EveryViewIsMadeOfEverySource) {
  for (const LiveSource& source :
       {LiveSource{.picture = Noise(700, 500), .zoom = 0.5}, LiveSource{.levels = Steps(3, 2)},
        LiveSource{.figure = -16}, LiveSource{.levels = Steps(0, 0)}}) {
    request_.source = source;
    for (int view = 1; view <= kLiveViews; ++view) {
      request_.view = static_cast<LiveView>(view);
      for (const bool fit : {false, true}) {
        request_.fit = fit;
        const auto made = Make();
        ASSERT_FALSE(made.empty());
        EXPECT_EQ(made.back().view, request_.view);
      }
    }
    EXPECT_TRUE(maker_.Measure(request_, quiet_).has_value());
  }
}

TEST_F(LiveMakerTest, FoundTellsHowMuchAndTheMeterAgrees) {
  request_.source = {.figure = -16};
  request_.view = LiveView::kFound;
  const auto made = Make();
  ASSERT_TRUE(made.back().found.has_value());
  EXPECT_GT(*made.back().found, 0.8);
  const auto meter = maker_.Measure(request_, quiet_);
  ASSERT_TRUE(meter.has_value());
  EXPECT_NEAR(*meter->found, *made.back().found, 0.1);
  EXPECT_DOUBLE_EQ(meter->repeats.millimetres, 25);
}

TEST_F(LiveMakerTest, ASmallerPictureComesFirstAndStoppingLeavesItAtThat) {
  request_.source = {.picture = Noise(2500, 2000)};
  const auto made = Make();
  ASSERT_EQ(made.size(), 2U);
  EXPECT_FALSE(made[0].isWhole);
  EXPECT_EQ(made[1].stereogram->width(), 2500);
  quiet_.stops = true;
  EXPECT_TRUE(Make().empty());
  EXPECT_FALSE(maker_.Measure(request_, quiet_).has_value());
}

}  // namespace
}  // namespace plenovia
