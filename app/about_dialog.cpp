#include "app/about_dialog.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QSysInfo>
#include <QVBoxLayout>

#include "codec/graph_io.h"
#include "platform/ui/resource_pictures.h"
#include "platform/ui/text.h"

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
  const QString system =
      tr("for %1, %2").arg(QSysInfo::prettyProductName(), QSysInfo::buildCpuArchitecture());
  const QString libraries = QStringLiteral("Qt %1\n").arg(QString::fromLatin1(qVersion())) +
                            ToQString(TGraphIO::GetVersionString());
  auto* line = new QLabel(libraries, this);
  line->setObjectName(QStringLiteral("libraries"));
  line->setAlignment(Qt::AlignCenter);
  auto* version =
      new QLabel(QStringLiteral("Plenovia " PLENOVIA_VERSION "\n%1\n%2")
                     .arg(system, tr("Free software under the MIT License, without any warranty.")),
                 this);
  version->setAlignment(Qt::AlignCenter);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok, this);
  buttons->setCenterButtons(true);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  auto* layout = new QVBoxLayout(this);
  layout->setSizeConstraint(QLayout::SetFixedSize);
  for (QWidget* widget : {static_cast<QWidget*>(picture), static_cast<QWidget*>(version),
                          static_cast<QWidget*>(line), static_cast<QWidget*>(buttons)}) {
    layout->addWidget(widget);
  }
}

}  // namespace plenovia
