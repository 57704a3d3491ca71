#include "depthmap/ui/level_panel.h"

#include <gtest/gtest.h>

#include <QtTest/QTest>
#include <string>

#include "depthmap/ui/tests/map_window_fixture.h"

namespace plenovia {
namespace {

class LevelAtHand : public MapWindow {
 protected:
  LevelAtHand() {
    panel.SetMap(window);
    QObject::connect(window, &TMapWindow::StateChanged, &panel, &LevelPanel::Refresh);
    QObject::connect(window, &TMapWindow::Told, &panel, [this](const QString& text) {
      if (!text.isEmpty()) told = text.toStdString();
    });
  }

  void Type(const char* keys, Qt::KeyboardModifiers held = {}) {
    QTest::keyClicks(View()->parentWidget(), QString::fromLatin1(keys), held);
  }
  int Shown() const {
    auto* slider = panel.findChild<QSlider*>(QStringLiteral("levelSlider"));
    auto* number = panel.findChild<QSpinBox*>(QStringLiteral("levelNumber"));
    EXPECT_EQ(slider->value(), number->value());
    return number->value();
  }
  std::string Label(const char* name) const {
    return panel.findChild<QLabel*>(QString::fromLatin1(name))->text().toStdString();
  }

  LevelPanel panel;
  std::string told;
};

TEST_F(LevelAtHand, KeysGiveItToTheNextShapeAndToWhatIsSelected) {
  EXPECT_EQ(Label("levelOwner") + Label("levelOthers"), "NextGround 0");
  Type("+");
  Type("+", Qt::ShiftModifier);
  EXPECT_EQ(Shown(), 11);
  Type("-", Qt::ShiftModifier);
  Type("--");
  EXPECT_EQ(Shown(), 0);
  Type("12");
  EXPECT_EQ(told, "Level 12");
  Give(kSquareBoxTool);
  Drag({10, 10}, {60, 60});  // the number counts from the press on
  EXPECT_EQ(Top(), "3(10,10,60,60)=12");
  EXPECT_EQ(Label("levelOwner"), "Selected");
  Type("40");
  QTest::keyClick(View()->parentWidget(), Qt::Key_Return);
  EXPECT_EQ(Top(), "3(10,10,60,60)=40");
  EXPECT_EQ(Shown(), 40);
  window->RunCommand(kCmUndo);
  EXPECT_EQ(Top(), "3(10,10,60,60)=12") << "one step for a number";
  EXPECT_EQ(Shown(), 12);
  EXPECT_EQ(Label("levelOthers"), "Next 40\nGround 0");
  Type("2569");
  EXPECT_TRUE(QTest::qWaitFor([&] { return Shown() == 69; })) << "256 is none: 25, then 6, 69";
}

TEST_F(LevelAtHand, PanelSetsItInOneStepForEachPull) {
  Draw(kCircleTool, 7, {10, 10}, {60, 60});
  EXPECT_EQ(Shown(), 7);
  auto* slider = panel.findChild<QSlider*>(QStringLiteral("levelSlider"));
  slider->setSliderDown(true);
  for (const int level : {20, 90, 200}) slider->setValue(level);
  slider->setSliderDown(false);
  EXPECT_EQ(Top(), "6(10,10,60,60)=200");
  panel.findChild<QSpinBox*>(QStringLiteral("levelNumber"))->setValue(31);
  EXPECT_EQ(Top(), "6(10,10,60,60)=31");
  window->RunCommand(kCmUndo);
  EXPECT_EQ(Shown(), 200);
  window->RunCommand(kCmUndo);
  EXPECT_EQ(Shown(), 7);
  panel.SetMap(nullptr);
  EXPECT_FALSE(panel.isEnabled());
}

TEST_F(LevelAtHand, StatusBarTellsPlaceSizeAndWhatCannotBeSeen) {
  Hover({30, 20});
  EXPECT_EQ(told, "x 30, y 20: level 0");
  SetLevel(5);
  Give(kSquareBoxTool);
  Press({10, 10});
  Pull({4, 30});
  EXPECT_EQ(told, "from 10, 10 to 4, 30: 6 x 20, level 5");
  Release({4, 30});
  Hover({5, 20});
  EXPECT_EQ(told, "x 5, y 20: level 5");
  Drag({5, 11}, {9, 29});
  EXPECT_NE(told.find("cannot be seen"), std::string::npos);
  Drag({5, 11}, {100, 29});
  EXPECT_EQ(told.find("cannot be seen"), std::string::npos);
  Give(kPolygonTool);
  Click({1, 1});
  Hover({2, 2});
  EXPECT_EQ(told, "1 of at most 64 points, level 5 (x 2, y 2: level 0)");
}

}  // namespace
}  // namespace plenovia
