#include "images/ui/patt_dialog.h"

#include <QCoreApplication>
#include <QFontMetrics>
#include <QHBoxLayout>
#include <QIcon>
#include <QPushButton>
#include <QVBoxLayout>
#include <filesystem>
#include <system_error>

#include "platform/ui/dialog_controls.h"
#include "platform/ui/message_box.h"
#include "platform/ui/private_message.h"
#include "platform/ui/resource_pictures.h"
#include "platform/ui/text.h"
#include "platform/ui/trash.h"

namespace plenovia {

namespace {

constexpr int kAddButton = 303;
constexpr int kDeleteButton = 304;
constexpr int kUndoButton = 305;

// The picture is the caption, and the text where there is no picture.
QPushButton* MakePictureButton(int id, const QString& text) {
  const QIcon picture = ButtonPicture(id);
  QPushButton* button = MakeButton(id, picture.isNull() ? text : QString());
  button->setIcon(picture);
  const int height = button->fontMetrics().height() * 3 / 2;
  button->setIconSize(picture.actualSize(QSize(10 * height, height)));
  button->setAccessibleName(text);
  button->setToolTip(text);
  return button;
}

}  // namespace

TPattDialog::TPattDialog(QWidget* frame, TSirdPatt& library, bool addingAllowed)
    : QDialog(frame),
      frame_(frame),
      library_(library),
      edits_(library),
      browser_(new PatternBrowser(library)),
      grid_(new PatternGrid),
      delete_(MakePictureButton(kDeleteButton, tr("Delete"))),
      undo_(MakeButton(kUndoButton, tr("&Undo"))) {
  setObjectName(QStringLiteral("PATT"));
  setWindowTitle(tr("Select Pattern"));
  QPushButton* add = MakePictureButton(kAddButton, tr("Add"));
  add->setEnabled(addingAllowed);
  if (!addingAllowed)
    add->setToolTip(tr("Add takes a pattern from the picture in the active window"));
  connect(add, &QPushButton::clicked, this, &TPattDialog::Add);
  connect(delete_, &QPushButton::clicked, this, &TPattDialog::Delete);
  connect(undo_, &QPushButton::clicked, this, &TPattDialog::Undo);
  connect(browser_, &PatternBrowser::Moved, this, &TPattDialog::ShowChoice);
  connect(grid_, &PatternGrid::Chosen, browser_, &PatternBrowser::Show);
  connect(grid_, &PatternGrid::itemActivated, this, &TPattDialog::accept);

  auto* changes = new QHBoxLayout;
  changes->addWidget(add);
  changes->addWidget(delete_);
  browser_->Buttons()->addLayout(changes);
  browser_->Buttons()->addWidget(undo_);
  auto* all = new QVBoxLayout(this);
  all->addWidget(grid_, 1);
  all->addWidget(browser_);
  all->addLayout(MakeOkCancelRow(this));
  grid_->Update(library_);
  ShowChoice();
  grid_->setFocus();
}

void TPattDialog::ShowAll(int index) {
  browser_->Show(index);
  grid_->Update(library_);
}

void TPattDialog::ShowChoice() {
  const int shown = browser_->Shown();
  grid_->setCurrentRow(shown);
  const bool own = shown >= 0 && shown < library_.GetCount() && library_.IsOwn(shown);
  delete_->setEnabled(own);
  delete_->setToolTip(own ? tr("Delete") : tr("Only your own patterns can be deleted"));
  undo_->setEnabled(edits_.CanUndo());
}

void TPattDialog::Add() {
  const TSirdPatt before = library_;
  PrivateMessage message(WM_ADDPATTERN, library_.GetCount());
  QCoreApplication::sendEvent(frame_, &message);
  if (message.result() == 0) {
    const QString text = tr("Unable to add the pattern.") + u'\r' + message.reason();
    ShowMessage(this, text.trimmed(), tr("Add Pattern"), MessageIcon::kExclamation);
    return;
  }
  edits_.Changed(before);
  ShowAll(library_.GetCount() - 1);
}

void TPattDialog::Delete() {
  const TSirdPatt before = library_;
  library_.RemovePattern(browser_->Shown());
  edits_.Changed(before);
  ShowAll(library_.GetCurrentIndex());
}

void TPattDialog::Undo() {
  edits_.Undo();
  ShowAll(library_.GetCurrentIndex());
}

void TPattDialog::accept() {
  library_.SelectPattern(browser_->Shown());
  QStringList kept;
  for (const std::filesystem::path& file : edits_.Dropped()) {
    if (!MoveToTrash(PathToQString(file))) kept << PathToQString(file);
  }
  if (!kept.isEmpty()) {
    ShowMessage(this,
                tr("There is no trash for these files, so they stay:") + u'\r' + kept.join(u'\r'),
                windowTitle(), MessageIcon::kExclamation);
  }
  QDialog::accept();
}

void TPattDialog::reject() {
  std::error_code ignored;
  for (const std::filesystem::path& file : edits_.Revert()) std::filesystem::remove(file, ignored);
  QDialog::reject();
}

}  // namespace plenovia
