#include "depthmap/ui/map_size_dialog.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>

#include "platform/limits.h"

namespace plenovia {

namespace {

QSpinBox* Side(const char* name, int value) {
  auto* side = new QSpinBox;
  side->setObjectName(QString::fromLatin1(name));
  side->setRange(1, kMaxSide);
  side->setValue(value);
  return side;
}

}  // namespace

MapSizeDialog::MapSizeDialog(QWidget* parent, const QSize& size)
    : QDialog(parent),
      width_(Side("mapWidth", size.width())),
      height_(Side("mapHeight", size.height())) {
  setWindowTitle(tr("Map Size"));
  auto* form = new QFormLayout(this);
  form->addRow(tr("&Width:"), width_);
  form->addRow(tr("&Height:"), height_);
  form->addRow(new QLabel(tr("Shapes stay where they are.")));
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  form->addRow(buttons);
  width_->selectAll();
}

}  // namespace plenovia
