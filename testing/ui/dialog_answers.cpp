#include "testing/ui/dialog_answers.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QPushButton>
#include <algorithm>

namespace plenovia {

DialogAnswers::DialogAnswers() : timer_(startTimer(5)) {}

DialogAnswers::~DialogAnswers() {
  EXPECT_TRUE(answers_.empty()) << answers_.size() << " dialogs did not open";
}

void DialogAnswers::AddMessage(const QString& text, const QString& title,
                               QMessageBox::StandardButton button) {
  Add([=](QDialog& dialog) {
    auto* box = qobject_cast<QMessageBox*>(&dialog);
    ASSERT_NE(box, nullptr) << "not a message box";
    EXPECT_EQ(box->text().toStdString(), text.toStdString());
    EXPECT_EQ(box->windowTitle().toStdString(), title.toStdString());
    ASSERT_NE(box->button(button), nullptr) << "no such button";
    box->button(button)->click();
  });
}

void DialogAnswers::AddFile(const QString& path) {
  Add([=](QDialog& dialog) {
    auto* files = qobject_cast<QFileDialog*>(&dialog);
    ASSERT_NE(files, nullptr) << "not a file dialog";
    if (path.isEmpty()) {
      files->reject();
      return;
    }
    auto* name = files->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    ASSERT_NE(name, nullptr);
    name->setText(path);
    auto* buttons = files->findChild<QDialogButtonBox*>(QStringLiteral("buttonBox"));
    ASSERT_NE(buttons, nullptr);
    const auto accept = files->acceptMode() == QFileDialog::AcceptSave ? QDialogButtonBox::Save
                                                                       : QDialogButtonBox::Open;
    buttons->button(accept)->click();
  });
}

void DialogAnswers::timerEvent(QTimerEvent*) {
  auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
  if (dialog == nullptr || !dialog->isVisible()) return;
  if (std::find(answered_.begin(), answered_.end(), dialog) != answered_.end()) return;
  answered_.push_back(dialog);
  connect(dialog, &QDialog::finished, this, [this, dialog] {
    answered_.erase(std::remove(answered_.begin(), answered_.end(), dialog), answered_.end());
  });
  if (answers_.empty()) {
    ADD_FAILURE() << "unexpected dialog: " << dialog->windowTitle().toStdString();
    dialog->reject();
    return;
  }
  // Not from within the timer's event, which would keep the timer from serving a second dialog
  // that this answer opens.
  QMetaObject::invokeMethod(
      dialog, [answer = std::move(answers_.front()), dialog] { answer(*dialog); },
      Qt::QueuedConnection);
  answers_.pop_front();
}

}  // namespace plenovia
