#include "depthmap/ui/map_size_dialog.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>

#include "platform/limits.h"
#include "platform/ui/dialog_controls.h"

namespace plenovia {

MapSizeDialog::MapSizeDialog(QWidget* parent, const QSize& size)
    : QDialog(parent),
      width_(MakeSpinBox("mapWidth", 1, kMaxSide, size.width())),
      height_(MakeSpinBox("mapHeight", 1, kMaxSide, size.height())) {
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
