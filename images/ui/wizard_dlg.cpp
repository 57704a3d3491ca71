#include "images/ui/wizard_dlg.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>

#include "platform/ui/dialog_controls.h"
#include "platform/ui/resource_pictures.h"

namespace plenovia {

namespace {

constexpr int kPicture = 601;
constexpr QSize kPictureSize(64, 96);

}  // namespace

WizardDlg::WizardDlg(QWidget* parent, const QString& text)
    : QDialog(parent), content_(new QVBoxLayout), next_(MakeButton(kNext, tr("Next >"))) {
  setWindowTitle(tr("SIRDS Wizard"));
  setMinimumSize(DialogUnits(*this, 222, 119));

  auto* page = new QHBoxLayout;
  const QIcon icon = ButtonPicture(kPicture);
  if (!icon.isNull()) {
    auto* picture = new QLabel;
    picture->setObjectName(QStringLiteral("picture%1").arg(kPicture));
    picture->setPixmap(icon.pixmap(kPictureSize, devicePixelRatioF()));
    page->addWidget(picture, 0, Qt::AlignTop);
  }
  auto* words = new QLabel(text);
  words->setTextFormat(Qt::PlainText);
  words->setWordWrap(true);
  content_->addWidget(words);
  page->addLayout(content_, 1);
  auto* all = new QVBoxLayout(this);
  all->addLayout(page, 1);
}

void WizardDlg::AddButtons(BackButton back) {
  auto* buttons = new QGridLayout;
  for (int column = 0; column < 3; ++column) buttons->setColumnStretch(column, 1);
  static_cast<QVBoxLayout*>(layout())->addLayout(buttons);
  if (back == BackButton::kShown) {
    QPushButton* button = MakeButton(kBack, tr("< Back"));
    connect(button, &QPushButton::clicked, this, [this] {
      OnBack();
      done(kBack);
    });
    buttons->addWidget(button, 0, 0, Qt::AlignLeft);
  }
  buttons->addWidget(MakeCancelButton(this), 0, 1, Qt::AlignHCenter);
  buttons->addWidget(next_, 0, 2, Qt::AlignRight);
  next_->setDefault(true);
  connect(next_, &QPushButton::clicked, this, [this] {
    if (OnNext()) done(kNext);
  });
}

}  // namespace plenovia
