// The controls and the pane, used with mouse and keys.

#include <gtest/gtest.h>

#include <QListWidgetItem>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>
#include <QWheelEvent>

#include "live/ui/live_controls.h"
#include "live/ui/live_model.h"
#include "live/ui/live_pane.h"

namespace plenovia {
namespace {

std::shared_ptr<const IndexedImage> Tile(int side, std::uint8_t index) {
  auto tile = IndexedImage::Create(side, side, Palette::Grays()).value();
  tile.Fill(index);
  return std::make_shared<const IndexedImage>(std::move(tile));
}

class ControlsTest : public testing::Test {
 protected:
  ControlsTest() {
    for (const int side : {30, 60}) library_.AppendPattern(Tile(side, 9));
    library_.SelectPattern(0);
    controls_.resize(400, 300);
    controls_.ShowHistogram(
        std::make_shared<const LevelHistogram>(LevelHistogram{{0, 50}, {20, 5}, {40, 5}}));
    controls_.show();
  }
  RangeSlider& Range() { return *controls_.findChild<RangeSlider*>(); }
  void Drag(int from, int to) {
    const int y = Range().height() - 8;
    QTest::mousePress(&Range(), Qt::LeftButton, {}, {from, y});
    QTest::mouseMove(&Range(), {to, y});
    QTest::mouseRelease(&Range(), Qt::LeftButton, {}, {to, y});
  }

  TSirdsSettings record_;
  TSirdPatt library_;
  LiveModel model_{nullptr, record_, [this] { return &library_; }};
  LiveControls controls_{nullptr, model_};
};

TEST_F(ControlsTest, TheHandlesChooseARangeThatIsUsedAsSet) {
  const QSignalSpy edited(&model_, &LiveModel::SettingsEdited);
  Drag(Range().HandlePlace(true), Range().HandlePlace(true) - 100);
  const std::int32_t zmax = record_.zmax;
  EXPECT_LT(zmax, 60);
  EXPECT_EQ(record_.zmin, 0);
  EXPECT_EQ(record_.fitRange, 0);
  Drag(Range().HandlePlace(false), Range().HandlePlace(false) + 50);
  EXPECT_GT(record_.zmin, 5);
  EXPECT_EQ(record_.zmax, zmax);

  const std::int32_t width = record_.zmax - record_.zmin;
  const int middle = (Range().HandlePlace(false) + Range().HandlePlace(true)) / 2;
  Drag(middle, middle + 30);
  EXPECT_GT(record_.zmax, zmax);
  EXPECT_EQ(record_.zmax - record_.zmin, width);
  QTest::keyClick(&Range(), Qt::Key_Right);
  EXPECT_EQ(record_.zmax - record_.zmin, width + 1);
  EXPECT_FALSE(edited.isEmpty());

  QTest::mouseDClick(&Range(), Qt::LeftButton);
  EXPECT_EQ(record_, TSirdsSettings{});
}

TEST_F(ControlsTest, ADragEndsAtTheOtherHandleAndNeverLeavesTheAxis) {
  Drag(Range().HandlePlace(true), -500);
  EXPECT_EQ(record_.zmax, record_.zmin);
  const std::int64_t end = Range().Axis().highest;
  Drag(Range().HandlePlace(true), 5000);
  EXPECT_EQ(record_.zmax, end);
  EXPECT_GT(Range().Axis().highest, end) << "there is room to drag on";
}

TEST_F(ControlsTest, ExchangeTurnsNearAndFarRoundAndBack) {
  auto* exchange = controls_.findChild<QToolButton*>(QStringLiteral("liveExchange"));
  controls_.ShowRange({.zmin = 0, .zmax = 36, .fitted = true});
  QTest::mouseClick(exchange, Qt::LeftButton);
  EXPECT_EQ(record_.zmin, 36);
  EXPECT_EQ(record_.zmax, 0);
  EXPECT_EQ(record_.fitRange, 0);
  EXPECT_TRUE(exchange->isChecked());
  model_.Edit([](TSirdsSettings& record) { record.gapValue = 90; });
  EXPECT_EQ(record_.zmin, 36) << "another edit leaves it so";
  QTest::mouseClick(exchange, Qt::LeftButton);
  EXPECT_EQ(record_.zmin, 0);
  EXPECT_EQ(record_.zmax, 36);
}

TEST_F(ControlsTest, TheOtherControlsEditTheRecord) {
  auto* gap = controls_.findChild<ResetSlider*>(QStringLiteral("liveGap"));
  gap->Slider().setValue(140);
  EXPECT_EQ(record_.gapValue, 140);
  QTest::mouseDClick(&gap->Slider(), Qt::LeftButton);
  EXPECT_EQ(record_.gapValue, 100);

  auto* scan = controls_.findChild<QComboBox*>(QStringLiteral("liveScan"));
  scan->setFocus();
  QTest::keyClick(scan, Qt::Key_Down);
  EXPECT_EQ(record_.scanMethod, kFeucht);
  QTest::mouseClick(controls_.findChild<QCheckBox*>(QStringLiteral("liveMarkers")), Qt::LeftButton);
  EXPECT_EQ(record_.marker, 0);
  QTest::mouseClick(controls_.findChild<QToolButton*>(QStringLiteral("liveFitRange")),
                    Qt::LeftButton);
  EXPECT_EQ(record_.zmax, 40 * 4);  // levels of shapes count four times in this method

  auto* strip = controls_.findChild<PatternStrip*>();
  strip->Update(&library_);
  EXPECT_EQ(strip->count(), 2);
  strip->setCurrentRow(1);
  EXPECT_EQ(library_.GetCurrentIndex(), 1);
  library_.AppendPattern(Tile(10, 3));
  strip->Update(&library_);
  EXPECT_EQ(strip->count(), 3);
  EXPECT_EQ(strip->currentRow(), 1);
}

TEST(LivePane, ShowsDotsInTheMiddleAndLargerPicturesByDragging) {
  LivePane pane(nullptr);
  pane.resize(200, 100);
  pane.show();
  const qreal scale = pane.devicePixelRatioF();
  const auto picture = std::make_shared<LivePicture>();
  auto ramp = IndexedImage::Create(1000, 20, Palette::Grays()).value();
  for (int y = 0; y < 20; ++y) {
    for (std::size_t x = 0; x < 1000; ++x) ramp.Row(y)[x] = static_cast<std::uint8_t>(x % 256);
  }
  picture->stereogram = std::make_shared<const IndexedImage>(std::move(ramp));
  pane.Show(picture);
  const auto grayAt = [&](int x) {
    const QImage shown = pane.grab().toImage();
    return qGray(shown.pixel(x, shown.height() / 2));
  };
  EXPECT_EQ(grayAt(7), 7);
  QTest::mousePress(&pane, Qt::LeftButton, {}, {150, 50});
  QTest::mouseMove(&pane, {100, 50});
  QTest::mouseRelease(&pane, Qt::LeftButton, {}, {100, 50});
  EXPECT_EQ(grayAt(7), 7 + qRound(50 * scale));
}

TEST(LivePane, TheMouseMeansWhatIsShown) {
  LivePane pane(nullptr);
  pane.resize(200, 100);
  pane.show();
  QSignalSpy turned(&pane, &LivePane::ReliefTurned);
  QSignalSpy moved(&pane, &LivePane::FigureMoved);
  const auto drag = [&](LiveView view, bool figure) {
    const auto picture = std::make_shared<LivePicture>();
    picture->view = view;
    picture->colours = RgbPicture(20, 10);
    pane.SetShowsFigure(figure);
    pane.Show(picture);
    QTest::mousePress(&pane, Qt::LeftButton, {}, {50, 50});
    QTest::mouseMove(&pane, {60, 45});
    QTest::mouseRelease(&pane, Qt::LeftButton, {}, {60, 45});
  };
  drag(LiveView::kDepth, false);
  EXPECT_EQ(turned.count() + moved.count(), 0);
  drag(LiveView::kDepth, true);
  EXPECT_EQ(moved.count(), 1);
  drag(LiveView::kRelief, true);
  EXPECT_EQ(turned.count(), 1);

  QSignalSpy angle(&pane, &LivePane::FigureTurned);
  QWheelEvent wheel({50, 50}, pane.mapToGlobal(QPointF(50, 50)), {}, {0, 240}, Qt::NoButton,
                    Qt::ShiftModifier, Qt::NoScrollPhase, false);
  QCoreApplication::sendEvent(&pane, &wheel);
  ASSERT_EQ(angle.count(), 1);
  EXPECT_EQ(angle[0][0].toDouble(), 2);
}

}  // namespace
}  // namespace plenovia
