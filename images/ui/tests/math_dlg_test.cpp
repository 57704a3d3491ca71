#include "images/ui/math_dlg.h"

#include <gtest/gtest.h>

#include <QPushButton>
#include <QTest>

namespace plenovia {
namespace {

QListWidget& List(MathDlg& dialog) {
  return *dialog.findChild<QListWidget*>(QStringLiteral("list101"));
}

TEST(MathDlg, ListsTheFiguresByNumber) {
  MathDlg dialog(nullptr);
  const QStringList titles = FigureTitles();
  ASSERT_GE(titles.size(), 5);
  ASSERT_EQ(List(dialog).count(), titles.size());
  for (int i = 0; i < titles.size(); ++i) EXPECT_EQ(List(dialog).item(i)->text(), titles[i]);
  EXPECT_EQ(List(dialog).currentRow(), 0);
  EXPECT_FALSE(titles[0].isEmpty());
  EXPECT_TRUE(FigureTitle(static_cast<int>(titles.size())).isEmpty());
  EXPECT_TRUE(FigureTitle(-1).isEmpty());
}

TEST(MathDlg, OkGivesTheSelection) {
  const QStringList titles{QStringLiteral("Wave"), QStringLiteral("Cone"), QStringLiteral("Arch")};
  MathDlg dialog(nullptr, titles);
  dialog.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
  EXPECT_EQ(dialog.focusWidget(), &List(dialog));
  QTest::keyClick(&List(dialog), Qt::Key_Down);
  QTest::keyClick(&List(dialog), Qt::Key_Return);
  EXPECT_EQ(dialog.result(), QDialog::Accepted);
  EXPECT_EQ(dialog.SelectedIndex(), 1);
  EXPECT_EQ(dialog.SelectedTitle(), titles[1]);

  dialog.show();
  const QPoint third = List(dialog).visualItemRect(List(dialog).item(2)).center();
  QTest::mouseClick(List(dialog).viewport(), Qt::LeftButton, {}, third);
  QTest::mouseDClick(List(dialog).viewport(), Qt::LeftButton, {}, third);
  EXPECT_FALSE(dialog.isVisible());
  EXPECT_EQ(dialog.SelectedIndex(), 2);

  dialog.show();
  QTest::keyClick(&List(dialog), Qt::Key_Escape);
  EXPECT_EQ(dialog.result(), QDialog::Rejected);
}

TEST(MathDlg, WithoutFiguresOkGivesNone) {
  MathDlg dialog(nullptr, QStringList());
  dialog.findChild<QPushButton*>(QStringLiteral("button1"))->click();
  EXPECT_EQ(dialog.result(), QDialog::Accepted);
  EXPECT_EQ(dialog.SelectedIndex(), -1);
  EXPECT_TRUE(dialog.SelectedTitle().isEmpty());
}

}  // namespace
}  // namespace plenovia
