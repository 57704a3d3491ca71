#include "app/about_dialog.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QVBoxLayout>

#include "platform/ui/resource_pictures.h"

namespace plenovia {

namespace {

constexpr QSize kPictureSize(400, 260);

}  // namespace

TAboutDialog::TAboutDialog(QWidget* parent) : QDialog(parent) {
  setObjectName(QStringLiteral("about"));
  setWindowTitle(tr("About"));
  auto* picture = new QLabel(this);
  picture->setPixmap(
      DrawnPicture(QStringLiteral(":/start_up.svg"), kPictureSize, devicePixelRatioF()));
  auto* line = new QLabel(tr("Win32 Version"), this);
  line->setAlignment(Qt::AlignCenter);
  auto* version = new QLabel(QStringLiteral("Plenovia " PLENOVIA_VERSION), this);
  version->setAlignment(Qt::AlignCenter);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok, this);
  buttons->setCenterButtons(true);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  auto* layout = new QVBoxLayout(this);
  layout->setSizeConstraint(QLayout::SetFixedSize);
  for (QWidget* widget : {static_cast<QWidget*>(picture), static_cast<QWidget*>(line),
                          static_cast<QWidget*>(version), static_cast<QWidget*>(buttons)}) {
    layout->addWidget(widget);
  }
}

}  // namespace plenovia
