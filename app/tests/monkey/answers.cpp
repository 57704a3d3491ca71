#include "app/tests/monkey/answers.h"

#include <gtest/gtest.h>

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QWindow>

#include "app/tests/monkey/pokes.h"

namespace plenovia {

namespace {

constexpr int kAnswersBeforeRejecting = 25;
constexpr int kAnswersBeforeGivingUp = 200;

int CountAnswer(QDialog& asking) {
  constexpr auto kName = "answersOfTheMonkey";
  const int count = asking.property(kName).toInt() + 1;
  asking.setProperty(kName, count);
  return count;
}

void PressAnyButton(QDialog& dialog, Chance& chance) {
  QList<QPushButton*> buttons;
  for (auto* button : dialog.findChildren<QPushButton*>()) {
    if (button->isVisible() && button->isEnabled() && button->window() == &dialog) {
      buttons << button;
    }
  }
  if (buttons.isEmpty()) {
    dialog.close();
  } else {
    chance.Pick(buttons)->click();
  }
}

// Only types a name: by the list of files it could delete or rename what is not its own.
void AnswerFileDialog(QFileDialog& dialog, Chance& chance, MonkeyFiles& files) {
  const bool saves = dialog.acceptMode() == QFileDialog::AcceptSave;
  if (chance.OneIn(3)) {
    dialog.selectNameFilter(chance.Pick(dialog.nameFilters()));
  }
  auto* name = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
  auto* buttons = dialog.findChild<QDialogButtonBox*>(QStringLiteral("buttonBox"));
  if (chance.OneIn(6) || name == nullptr || buttons == nullptr) return dialog.reject();
  name->setText(saves ? files.ToSave(chance) : files.ToOpen(chance));
  QPushButton* accept = buttons->button(saves ? QDialogButtonBox::Save : QDialogButtonBox::Open);
  if (accept != nullptr) accept->click();
}

}  // namespace

void AnswerDialog(QDialog& dialog, Chance& chance, MonkeyFiles& files) {
  const int count = CountAnswer(dialog);
  if (count > kAnswersBeforeGivingUp) {
    ADD_FAILURE() << "a dialog stays: " << dialog.windowTitle().toStdString();
    dialog.done(QDialog::Rejected);
  } else if (count > kAnswersBeforeRejecting) {
    dialog.reject();
  } else if (auto* asksForFile = qobject_cast<QFileDialog*>(&dialog)) {
    AnswerFileDialog(*asksForFile, chance, files);
  } else if (chance.OneIn(3) || qobject_cast<QMessageBox*>(&dialog) != nullptr) {
    PressAnyButton(dialog, chance);
  } else if (chance.OneIn(10)) {
    dialog.close();
  } else if (chance.OneIn(4)) {
    UseKeys(dialog, chance);
  } else {
    Poke(*AnyWidgetIn(dialog, chance), chance);
  }
}

void AnswerPopup(QWidget& popup, Chance& chance) {
  const QPointer<QWidget> self(&popup);
  const QPointer<QWindow> window = popup.windowHandle();
  if (!window || chance.OneIn(6)) {
    popup.close();
    return;
  }
  const auto press = [&](Qt::Key key) {
    if (self && self->isVisible()) StrikeKey(window, key);
  };
  for (int i = chance.Int(0, 9); i > 0; --i) press(chance.OneIn(4) ? Qt::Key_Up : Qt::Key_Down);
  press(chance.OneIn(3) ? Qt::Key_Escape : Qt::Key_Return);
}

}  // namespace plenovia
