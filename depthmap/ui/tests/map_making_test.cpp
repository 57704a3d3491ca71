// What the editor makes by dialogs: steps, text, another size.
#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPixmap>
#include <QSpinBox>
#include <algorithm>

#include "depthmap/ui/tests/map_window_fixture.h"

namespace plenovia {
namespace {

class MapMaking : public MapWindow {
 protected:
  template <class Change>
  void Answer(int command, Change change) {
    DialogAnswers answers;
    answers.Add([&](QDialog& dialog) {
      change(dialog);
      dialog.accept();
    });
    Give(command);
  }
  static void Set(QDialog& dialog, const char* name, int value) {
    dialog.findChild<QSpinBox*>(QString::fromLatin1(name))->setValue(value);
  }
};

TEST_F(MapMaking, StepsAreMadeOfTheSelectedShapeOnly) {
  EXPECT_FALSE(window->CommandEnabled(kCmMapSteps));
  Draw(kLineTool, 5, {10, 10}, {90, 90});
  EXPECT_FALSE(window->CommandEnabled(kCmMapSteps)) << "a line";
  Draw(kCircleTool, 5, {100, 100}, {300, 300});
  EXPECT_TRUE(window->CommandEnabled(kCmMapSteps));
  Answer(kCmMapSteps, [](QDialog& dialog) {
    dialog.findChild<QComboBox*>(QStringLiteral("form"))->setCurrentIndex(1);
    Set(dialog, "steps", 10);
    Set(dialog, "to", 95);
  });
  EXPECT_EQ(window->Objects().CountObjects(), 12);
  EXPECT_EQ(window->Objects().GetLevelAt(200, 200), 95);
  ExpectScreenUpToDate("steps");
  Give(kCmUndo);
  EXPECT_EQ(window->Objects().CountObjects(), 3);
  EXPECT_EQ(window->Objects().GetLevelAt(200, 200), 5);
}

TEST_F(MapMaking, TextBecomesSelectedLettersWithOpenHoles) {
  SetLevel(30);
  Answer(kTextTool, [](QDialog& dialog) {
    dialog.findChild<QLineEdit*>(QStringLiteral("text"))->setText(QStringLiteral("OBO"));
    Set(dialog, "textSize", 150);
    const auto preview = dialog.findChild<QLabel*>(QStringLiteral("textPreview"))->pixmap();
    EXPECT_EQ(preview.toImage().pixelColor(0, 0), Qt::black);
    const auto facts = dialog.findChild<QLabel*>(QStringLiteral("textFacts"))->text();
    EXPECT_TRUE(facts.contains(QStringLiteral("polygons: "))) << facts.toStdString();
  });
  const auto letters = window->Objects().Selection();
  ASSERT_GE(letters.size(), 3u);
  EXPECT_EQ(window->CurrentTool(), kMoveTool);
  PixelRect box = letters.front()->GetRect().Normalised();
  for (const TDepthObj* letter : letters) {
    EXPECT_LE(letter->GetPoints().size(), 64u);
    const PixelRect one = letter->GetRect().Normalised();
    box = {std::min(box.left, one.left), std::min(box.top, one.top), std::max(box.right, one.right),
           std::max(box.bottom, one.bottom)};
  }
  EXPECT_NEAR(static_cast<double>(box.left + box.right) / 2, 200, 2);
  EXPECT_NEAR(static_cast<double>(box.top + box.bottom) / 2, 200, 2);
  // Along the middle: in and out of the O, and of the stem of the B.
  int edges = 0;
  for (auto x = static_cast<std::int32_t>(box.left); x <= box.right; ++x) {
    const auto level = [&](std::int32_t column) {
      return window->Objects().GetLevelAt(column, 200);
    };
    if (level(x - 1) != level(x)) ++edges;
  }
  EXPECT_GE(edges, 10) << "four edges an O, and two of the B";
  ExpectScreenUpToDate("text");
  Give(kCmUndo);
  EXPECT_EQ(window->Objects().CountObjects(), 1);
  Answer(kTextTool, [](QDialog& dialog) {
    EXPECT_EQ(dialog.findChild<QLineEdit*>(QStringLiteral("text"))->text(), QStringLiteral("OBO"));
    dialog.findChild<QLineEdit*>(QStringLiteral("text"))->setText(QStringLiteral("  "));
  });
  EXPECT_EQ(window->Objects().CountObjects(), 1) << "nothing to be seen";
}

TEST_F(MapMaking, AnotherSizeCanBeUndoneAndIsThatOfTheFile) {
  window->SetMapSize({900, 50});
  EXPECT_EQ(window->GetBitmapInfo().width, 900);
  EXPECT_EQ(Top(), "3(0,0,900,50)=0");
  ExpectScreenUpToDate("another size");
  const QString path = PathToQString(folder / "map.rds");
  ASSERT_TRUE(window->WriteDepthMap(path));
  auto* second = Open(10, 10);
  ASSERT_TRUE(second->ReadDepthMap(path));
  EXPECT_EQ(second->GetBitmapInfo().width, 900);
  EXPECT_EQ(second->GetBitmapInfo().height, 50);
  second->CloseUnasked();
  window->RunCommand(kCmUndo);
  EXPECT_EQ(window->GetBitmapInfo().height, 400);
  EXPECT_EQ(Top(), "3(0,0,400,400)=0");
  EXPECT_FALSE(window->IsSaved());
  ExpectScreenUpToDate("the size before");
}

}  // namespace
}  // namespace plenovia
