#include "depthmap/ui/level_dialog.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <optional>

#include "testing/ui/dialog_answers.h"

namespace plenovia {
namespace {

struct LevelDialog : testing::Test {
  std::int32_t target = 17;
  TLevelDialog dialog{nullptr, target};
  QLineEdit* edit = dialog.findChild<QLineEdit*>(QStringLiteral("level"));

  LevelDialog() { dialog.show(); }
  void Type(const char* text) {
    edit->selectAll();
    QTest::keyClicks(edit, QString::fromLatin1(text));
  }
  void Press(QDialogButtonBox::StandardButton button) {
    auto* box = dialog.findChild<QDialogButtonBox*>(QStringLiteral("buttons"));
    QTest::mouseClick(box->button(button), Qt::LeftButton);
  }
  std::string AfterStep(const char* text, const char* button) {
    Type(text);
    auto* arrow = dialog.findChild<QAbstractButton*>(QString::fromLatin1(button));
    QTest::mouseClick(arrow, Qt::LeftButton);
    return edit->text().toStdString();
  }
};

TEST_F(LevelDialog, StepsStartFromWhatIsTyped) {
  EXPECT_EQ(edit->text(), QStringLiteral("17"));
  EXPECT_EQ(dialog.findChild<QLabel*>(QStringLiteral("range"))->text(),
            QStringLiteral("[Range: 0-255]"));
  EXPECT_EQ(AfterStep("99", "up"), "100");
  EXPECT_EQ(AfterStep("255", "up"), "0");
  EXPECT_EQ(AfterStep("0", "down"), "255");
  EXPECT_EQ(AfterStep("300", "up"), "0");
  EXPECT_EQ(AfterStep("-5", "down"), "255");
  EXPECT_EQ(target, 17);
}

TEST_F(LevelDialog, OkStoresTheLeadingNumber) {
  const std::vector<std::pair<const char*, int>> cases{
      {"12abc", 12}, {"abc", 0}, {" +42", 42}, {"255", 255}, {"0", 0}};
  for (const auto& [text, level] : cases) {
    dialog.show();
    Type(text);
    Press(QDialogButtonBox::Ok);
    EXPECT_EQ(target, level) << text;
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
  }
}

TEST_F(LevelDialog, OtherNumbersAreRefused) {
  for (const char* text : {"300", "-1", "99999999999"}) {
    DialogAnswers answers;
    answers.AddMessage(QStringLiteral("Level is not within accepted range"),
                       QStringLiteral("Note"));
    Type(text);
    Press(QDialogButtonBox::Ok);
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(edit->text(), QString::fromLatin1(text));
  }
  Press(QDialogButtonBox::Cancel);
  EXPECT_FALSE(dialog.isVisible());
  EXPECT_EQ(target, 17);
}

}  // namespace
}  // namespace plenovia
