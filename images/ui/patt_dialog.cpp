#include "images/ui/patt_dialog.h"

#include <QCoreApplication>
#include <QFontMetrics>
#include <QHBoxLayout>
#include <QIcon>
#include <QPushButton>
#include <QVBoxLayout>

#include "platform/ui/dialog_controls.h"
#include "platform/ui/message_box.h"
#include "platform/ui/private_message.h"
#include "platform/ui/resource_pictures.h"

namespace plenovia {

namespace {

constexpr int kAddButton = 303;
constexpr int kDeleteButton = 304;

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
    : QDialog(frame), frame_(frame), library_(library), browser_(new PatternBrowser(library)) {
  setObjectName(QStringLiteral("PATT"));
  setWindowTitle(tr("Select Pattern"));
  QPushButton* add = MakePictureButton(kAddButton, tr("Add"));
  add->setEnabled(addingAllowed);
  connect(add, &QPushButton::clicked, this, &TPattDialog::Add);

  auto* changes = new QHBoxLayout;
  changes->addWidget(add);
  changes->addWidget(MakePictureButton(kDeleteButton, tr("Delete")));
  browser_->Buttons()->addLayout(changes);
  auto* all = new QVBoxLayout(this);
  all->addWidget(browser_);
  all->addLayout(MakeOkCancelRow(this));
  all->setSizeConstraint(QLayout::SetFixedSize);
}

void TPattDialog::Add() {
  PrivateMessage message(WM_ADDPATTERN, library_.GetCount());
  QCoreApplication::sendEvent(frame_, &message);
  if (message.result() == 0) {
    const QString text = tr("Unable to add the pattern.") + u'\r' + message.reason();
    ShowMessage(this, text.trimmed(), tr("Add Pattern"), MessageIcon::kExclamation);
    return;
  }
  browser_->Show(library_.GetCount() - 1);
}

void TPattDialog::accept() {
  library_.SelectPattern(browser_->Shown());
  QDialog::accept();
}

void TPattDialog::reject() {
  browser_->RestoreOpening();
  QDialog::reject();
}

}  // namespace plenovia
