#include "images/ui/patt_dialog.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPushButton>
#include <QTest>
#include <memory>
#include <vector>

#include "platform/ui/picture_painting.h"
#include "platform/ui/private_message.h"
#include "testing/picture_compare.h"
#include "testing/ui/dialog_answers.h"

namespace plenovia {
namespace {

// Adds a pattern for each message WM_ADDPATTERN, when it can.
class Frame : public QWidget {
 public:
  explicit Frame(TSirdPatt& library) : library_(library) {}
  bool able = true;
  std::vector<int> asked;

 protected:
  bool event(QEvent* event) override {
    if (event->type() != PrivateMessage::EventType()) return QWidget::event(event);
    auto& message = static_cast<PrivateMessage&>(*event);
    EXPECT_EQ(message.number(), WM_ADDPATTERN);
    asked.push_back(message.value());
    if (able) {
      Random random(99);
      library_.AppendPattern(
          std::make_shared<const IndexedImage>(RandomPicture(random, 100, 100, 50)));
      message.SetResult(1);
    } else {
      message.SetReason(QStringLiteral("The disk is full."));
    }
    return true;
  }

 private:
  TSirdPatt& library_;
};

class PattDialog : public testing::Test {
 protected:
  void Open(int count, int current, bool addingAllowed = true) {
    Random random(4);
    for (int i = 0; i < count; ++i) {
      library.AppendPattern(
          std::make_shared<const IndexedImage>(RandomPicture(random, 150, 30, 200)));
    }
    library.SelectPattern(current);
    Reopen(addingAllowed);
  }
  void Reopen(bool addingAllowed = true) {
    dialog = std::make_unique<TPattDialog>(&frame, library, addingAllowed);
    dialog->show();
  }
  void Click(int id) { Button(id)->click(); }
  QPushButton* Button(int id) {
    return dialog->findChild<QPushButton*>(QStringLiteral("button%1").arg(id));
  }
  PatternSample* Sample() { return dialog->findChild<PatternSample*>(QStringLiteral("sample501")); }
  // That the dialog shows the pattern of this number, and that it is current.
  void ExpectShown(int number) {
    EXPECT_EQ(dialog->findChild<QLabel*>(QStringLiteral("label311"))->text().toStdString(),
              "Pattern No. " + std::to_string(number));
    EXPECT_EQ(library.GetCurrentIndex(), number - 1);
    EXPECT_EQ(Sample()->Pattern(), library.GetCurrentBitmap());
  }

  TSirdPatt library;
  Frame frame{library};
  std::unique_ptr<TPattDialog> dialog;
};

TEST_F(PattDialog, BrowsingGoesRoundAndTheLibraryFollows) {
  Open(3, 2);
  ExpectShown(3);
  Click(301);
  ExpectShown(1);
  Click(302);
  ExpectShown(3);
  Click(302);
  ExpectShown(2);
  EXPECT_FALSE(Button(304)->isEnabled());  // it ships
}

TEST_F(PattDialog, OkKeepsThePatternAndCancelRestoresIt) {
  Open(5, 1);
  Click(301);
  Click(1);
  EXPECT_EQ(dialog->result(), QDialog::Accepted);
  EXPECT_EQ(library.GetCurrentIndex(), 2);
  for (const bool byKey : {false, true}) {
    Reopen();
    Click(302);
    Click(302);
    if (byKey) {
      QTest::keyClick(dialog.get(), Qt::Key_Escape);
    } else {
      dialog->close();
    }
    EXPECT_EQ(library.GetCurrentIndex(), 2);
  }
}

TEST_F(PattDialog, AddAsksTheFrameAndShowsTheNewPattern) {
  Open(20, 7);
  Click(303);
  EXPECT_EQ(frame.asked, std::vector<int>{20});
  ExpectShown(21);
  Click(2);
  EXPECT_EQ(library.GetCurrentIndex(), 7);
  EXPECT_EQ(library.GetCount(), 20);
}

TEST_F(PattDialog, OwnPatternsAreDeletedAndComeBack) {
  Open(22, 20);
  const auto* grid = dialog->findChild<PatternGrid*>();
  EXPECT_EQ(grid->count(), 22);
  EXPECT_EQ(grid->item(20)->text(), QStringLiteral("21 (own)"));
  Click(304);
  EXPECT_EQ(library.GetNumber(20), 21);
  EXPECT_EQ(grid->count(), 21);
  Click(303);
  Click(305);
  Click(305);
  ExpectShown(21);
  EXPECT_EQ(library.GetNumber(20), 20);
  EXPECT_FALSE(Button(305)->isEnabled());
  Click(304);
  Click(1);
  EXPECT_EQ(library.GetCount(), 21);
}

TEST_F(PattDialog, TheGridAndTheButtonsShowTheSamePattern) {
  Open(20, 2);
  auto* grid = dialog->findChild<PatternGrid*>();
  Click(301);
  EXPECT_EQ(grid->currentRow(), 3);
  QTest::keyClick(grid, Qt::Key_1);
  QTest::keyClick(grid, Qt::Key_2);
  ExpectShown(12);
}

TEST_F(PattDialog, AFailedAddIsToldAndChangesNothing) {
  Open(20, 7);
  frame.able = false;
  DialogAnswers answers;
  answers.AddMessage(QStringLiteral("Unable to add the pattern.\nThe disk is full."),
                     QStringLiteral("Add Pattern"));
  Click(303);
  ExpectShown(8);
}

TEST_F(PattDialog, AddIsDisabledWhereItIsNotAllowed) {
  Open(20, 0, false);
  EXPECT_FALSE(Button(303)->isEnabled());
}

TEST_F(PattDialog, AnEmptyLibraryIsNumberOneAndWhite) {
  Open(0, 0);
  Click(302);
  Click(301);
  ExpectShown(1);
  const QImage shown = Sample()->grab().toImage();
  EXPECT_EQ(shown.pixelColor(0, 0), QColor(Qt::white));
  Click(303);
  ExpectShown(1);
  EXPECT_NE(Sample()->Pattern(), nullptr);
}

TEST_F(PattDialog, TheSampleShowsDotForDotOnWhite) {
  Open(1, 0);
  const QImage shown = Sample()->grab().toImage();
  const QImage pattern = ToImage(*library.GetCurrentBitmap());
  ASSERT_GE(shown.width(), 104);
  ASSERT_LT(shown.width(), pattern.width());
  for (int y = 0; y < shown.height(); ++y) {
    for (int x = 0; x < shown.width(); ++x) {
      const QRgb expected = y < pattern.height() ? pattern.pixel(x, y) : qRgb(255, 255, 255);
      ASSERT_EQ(shown.pixel(x, y) | 0xFF000000, expected) << x << ", " << y;
    }
  }
}

}  // namespace
}  // namespace plenovia
