// The dialogs as the frame runs them.

#include <QAbstractButton>
#include <QLineEdit>
#include <fstream>

#include "app/tests/program.h"
#include "platform/ui/text.h"

namespace plenovia {
namespace {

class Dialogs : public ProgramTest {
 protected:
  Dialogs() {
    qputenv("XDG_DATA_HOME", QByteArray::fromStdString(folder_.path().string()));
    Start();
  }

  static void Press(QDialog& dialog, const char* name) {
    auto* button = dialog.findChild<QAbstractButton*>(QString::fromLatin1(name));
    ASSERT_NE(button, nullptr) << name;
    button->click();
  }
  static void Type(QDialog& dialog, const char* name, const QString& text) {
    auto* edit = dialog.findChild<QLineEdit*>(QString::fromLatin1(name));
    ASSERT_NE(edit, nullptr) << name;
    edit->setText(text);
  }
};

TEST_F(Dialogs, SettingsWorkOnTheRecordOfTheFrame) {
  DialogAnswers answers;
  answers.Add([](QDialog& dialog) {
    Type(dialog, "edit105", QStringLiteral("333"));
    Press(dialog, "button1");
  });
  Run(kCmSettings);
  EXPECT_EQ(Frame().Settings().h, 333);
}

TEST_F(Dialogs, PatternsAreChosenForTheNextStereogram) {
  DialogAnswers answers;
  answers.Add([](QDialog& dialog) {
    EXPECT_FALSE(dialog.findChild<QAbstractButton*>(QStringLiteral("button303"))->isEnabled());
    Press(dialog, "button302");
    Press(dialog, "button1");
  });
  Run(kCmPatterns);
  EXPECT_EQ(Frame().Patterns()->GetCurrentIndex(), 19);
}

TEST_F(Dialogs, AFormulaIsMadeInTheSizeOfTheSettingsAndComesBack) {
  DialogAnswers answers;
  answers.Add([](QDialog& dialog) {
    Type(dialog, "edit102", QStringLiteral("sin(r) / 2"));
    Press(dialog, "button1");
  });
  Run(kCmFormula);
  TSirdsWnd* made = ActivePicture();
  ASSERT_NE(made, nullptr);
  EXPECT_EQ(made->GetTitle(), QStringLiteral("formula"));
  EXPECT_EQ(made->Picture()->width(), Frame().Settings().w);
  EXPECT_TRUE(made->IsStereogram());
  answers.Add([](QDialog& dialog) {
    EXPECT_EQ(dialog.findChild<QLineEdit*>(QStringLiteral("edit102"))->text(),
              QStringLiteral("sin(r) / 2"));
    Press(dialog, "button2");
  });
  Run(kCmFormula);
  EXPECT_EQ(ActivePicture(), made);
}

TEST_F(Dialogs, WizardMakesAFigure) {
  DialogAnswers answers;
  const auto next = [](QDialog& dialog) { Press(dialog, "button101"); };
  answers.Add(next);
  answers.Add([&](QDialog& dialog) {
    Type(dialog, "edit104", QStringLiteral("260"));
    next(dialog);
  });
  answers.Add(next);
  answers.Add(next);
  Run(kCmWizard);
  Settle();
  TSirdsWnd* made = ActivePicture();
  ASSERT_NE(made, nullptr);
  EXPECT_EQ(made->GetTitle(), QStringLiteral("sphere with meridians"));
  EXPECT_EQ(made->Picture()->width(), 260);
  EXPECT_TRUE(made->IsStereogram());
}

TEST_F(Dialogs, TheWizardLeavesTheReasonWhyASourceCannotBeRead) {
  const QString path = PathToQString(folder_ / "depth.gif");
  std::ofstream(ToPath(path)) << "no picture";
  WriteSettings("[wizard]\nsource_type=1\nsource_name=" + path.toStdString() + "\n");
  DialogAnswers answers;
  for (int page = 0; page < 4; ++page) {
    answers.Add([](QDialog& dialog) { Press(dialog, "button101"); });
  }
  QString told;
  answers.Add([&](QDialog& dialog) {
    told = qobject_cast<QMessageBox*>(&dialog)->text();
    dialog.accept();
  });
  Run(kCmWizard);
  Settle();
  told += Frame().Status().Message();
  EXPECT_TRUE(told.contains(QStringLiteral("format"))) << told.toStdString();
}

TEST_F(Dialogs, WizardOpensAPictureAndMakesItsStereogram) {
  WriteSettings("[wizard]\nsource_type=1\nsource_name=" +
                PictureFile("depth.gif", 210, 120).toStdString() + "\n");
  DialogAnswers answers;
  for (int page = 0; page < 4; ++page) {
    answers.Add([](QDialog& dialog) { Press(dialog, "button101"); });
  }
  Run(kCmWizard);
  Settle();
  ASSERT_NE(ActivePicture(), nullptr);
  EXPECT_EQ(ActivePicture()->GetTitle(), QStringLiteral("depth.gif{sird}"));
}

}  // namespace
}  // namespace plenovia
