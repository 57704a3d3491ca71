#include "sources/ui/formula_dialog.h"

#include <gtest/gtest.h>

#include <QTest>

namespace plenovia {
namespace {

class FormulaDialogTest : public testing::Test {
 protected:
  FormulaDialog dialog_{nullptr, {"x*y", 3}};
  QLineEdit& text_ = *dialog_.findChild<QLineEdit*>(QStringLiteral("edit102"));
  QComboBox& examples_ = *dialog_.findChild<QComboBox*>(QStringLiteral("list101"));
  QLabel& note_ = *dialog_.findChild<QLabel*>(QStringLiteral("note"));
  QLabel& preview_ = *dialog_.findChild<QLabel*>(QStringLiteral("preview"));
  QPushButton& ok_ = *dialog_.findChild<QPushButton*>(QStringLiteral("button1"));
};

TEST_F(FormulaDialogTest, TellsMistakesWhileTyping) {
  dialog_.show();
  EXPECT_FALSE(preview_.pixmap().isNull());
  text_.clear();
  for (const char letter : {'s', 'i', 'n', '(', 'x'}) {
    QTest::keyClick(&text_, letter);
    EXPECT_FALSE(note_.text().isEmpty());
    EXPECT_FALSE(ok_.isEnabled());
  }
  EXPECT_TRUE(preview_.pixmap().isNull());
  QTest::keyClick(&text_, ')');
  EXPECT_EQ(note_.text(), QString());
  EXPECT_TRUE(QTest::qWaitFor([&] { return !preview_.pixmap().isNull(); }));
  const QImage rising = preview_.pixmap().toImage();
  EXPECT_GT(rising.pixelColor(190, 100).red(), rising.pixelColor(140, 100).red());
  ok_.click();
  EXPECT_EQ(dialog_.result(), QDialog::Accepted);
  EXPECT_EQ(dialog_.Chosen().text, "sin(x)");
  EXPECT_EQ(dialog_.Chosen().reach, 3);
}

TEST_F(FormulaDialogTest, TakesNoFormulaWithoutValues) {
  dialog_.show();
  text_.setText(QStringLiteral("sqrt(-1)"));
  QTest::keyClick(&text_, Qt::Key_Return);  // before the preview was made
  EXPECT_TRUE(dialog_.isVisible());
  EXPECT_FALSE(note_.text().isEmpty());
}

TEST_F(FormulaDialogTest, FillsInAnExampleWithItsReach) {
  dialog_.show();
  const int flower = examples_.findText(QStringLiteral("Flower"));
  ASSERT_GT(flower, 0);
  examples_.setCurrentIndex(flower);
  Q_EMIT examples_.activated(flower);
  EXPECT_TRUE(dialog_.Chosen().text.starts_with("max("));
  EXPECT_EQ(dialog_.Chosen().reach, 1.7);
  QTest::keyClick(&text_, '1');
  EXPECT_EQ(examples_.currentIndex(), 0);
}

}  // namespace
}  // namespace plenovia
