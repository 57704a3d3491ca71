#include "engine/ui/sett_dialog.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>
#include <string>

#include "engine/ui/depth_range_hint.h"
#include "platform/ui/dialog_controls.h"

namespace plenovia {

TSettDialog::TSettDialog(QWidget* parent, TSirdsSettings& settings)
    : QDialog(parent),
      settings_(settings),
      width_(MakeNumberEdit(104)),
      height_(MakeNumberEdit(105)),
      gap_(MakeNumberEdit(107)),
      dx_(MakeNumberEdit(101)),
      dy_(MakeNumberEdit(102)),
      da_(MakeNumberEdit(110)),
      zmin_(MakeNumberEdit(103)),
      zmax_(MakeNumberEdit(114)),
      markers_(MakeCheck(109, tr("Add Markers"))),
      useBitmap_(MakeCheck(111, tr("Use Open Bitmap"))),
      byColor_(MakeRadio(108, tr("Depth by Color"))),
      byBrightness_(MakeRadio(112, tr("Depth by Brightness"))),
      scanMethod_(new QComboBox),
      restore_(MakeCheck(106, tr("Restore Defaults"))) {
  setObjectName(QStringLiteral("SETT"));
  setWindowTitle(tr("SIRDS Settings"));
  scanMethod_->setObjectName(QStringLiteral("list113"));
  scanMethod_->addItems({tr("Left-To-Right"), tr("McMahon"), tr("Feucht")});

  auto* boxes = new QHBoxLayout;
  boxes->addWidget(MakeParameters());
  boxes->addWidget(MakeOptions());
  auto* all = new QVBoxLayout(this);
  all->addLayout(boxes);
  all->addWidget(restore_, 0, Qt::AlignHCenter);
  all->addLayout(MakeOkCancelRow(this));
  all->setSizeConstraint(QLayout::SetFixedSize);

  connect(restore_, &QCheckBox::clicked, this, &TSettDialog::RestoreClicked);
  SetupWindow();
}

QGroupBox* TSettDialog::MakeParameters() {
  auto* size = new QHBoxLayout;
  size->addWidget(MakeLabel(tr("Width"), width_));
  size->addWidget(width_);
  size->addStretch();
  size->addWidget(MakeLabel(tr("Height"), height_));
  size->addWidget(height_);

  auto* numbers = new QGridLayout;
  numbers->setColumnStretch(0, 1);
  int row = 0;
  const auto add = [&](const QString& text, QLineEdit* edit) {
    numbers->addWidget(MakeLabel(text, edit), row, 0, Qt::AlignRight);
    numbers->addWidget(edit, row++, 1);
  };
  add(tr("Gap Value"), gap_);
  add(tr("Horizontal displacement"), dx_);
  add(tr("Vertical displacement"), dy_);
  add(tr("Angular displacement"), da_);

  auto* depth = new QGroupBox(tr("Depth Resolution"));
  depth->setToolTip(DepthRangeHint());
  auto* range = new QHBoxLayout(depth);
  range->addWidget(MakeLabel(tr("Zmin"), zmin_));
  range->addWidget(zmin_);
  range->addStretch();
  range->addWidget(MakeLabel(tr("Zmax"), zmax_));
  range->addWidget(zmax_);

  auto* group = new QGroupBox(tr("Parameters"));
  auto* all = new QVBoxLayout(group);
  all->addLayout(size);
  all->addLayout(numbers);
  all->addWidget(depth);
  return group;
}

QGroupBox* TSettDialog::MakeOptions() {
  auto* group = new QGroupBox(tr("Options"));
  group->setObjectName(QStringLiteral("group301"));
  auto* all = new QVBoxLayout(group);
  all->addWidget(markers_);
  all->addWidget(useBitmap_);
  all->addWidget(byColor_);
  all->addWidget(byBrightness_);
  all->addStretch();
  all->addWidget(MakeLabel(tr("SIRDS Scan Method"), scanMethod_));
  all->addWidget(scanMethod_);
  all->addStretch();
  return group;
}

void TSettDialog::SetupWindow() {
  width_->setText(QString::number(settings_.w));
  height_->setText(QString::number(settings_.h));
  gap_->setText(QString::number(settings_.gapValue));
  dx_->setText(QString::number(settings_.dx));
  dy_->setText(QString::number(settings_.dy));
  da_->setText(QString::number(settings_.da));
  zmin_->setText(QString::number(settings_.zmin));
  zmax_->setText(QString::number(settings_.zmax));
  (settings_.depthSel == kDepthByColor ? byColor_ : byBrightness_)->setChecked(true);
  scanMethod_->setCurrentIndex(settings_.scanMethod - 1);
  markers_->setChecked(settings_.marker != 0);
  useBitmap_->setChecked(settings_.useBmp != 0);
}

void TSettDialog::RestoreClicked(bool checked) {
  if (!checked) return;
  RestoreDefaults(settings_);
  SetupWindow();
}

void TSettDialog::accept() {
  if (!restore_->isChecked()) {
    const std::string width = width_->text().toStdString();
    const std::string height = height_->text().toStdString();
    const std::string gap = gap_->text().toStdString();
    const std::string dx = dx_->text().toStdString();
    const std::string dy = dy_->text().toStdString();
    const std::string da = da_->text().toStdString();
    const std::string zmin = zmin_->text().toStdString();
    const std::string zmax = zmax_->text().toStdString();
    settings_ = Normalise({.dx = dx,
                           .dy = dy,
                           .da = da,
                           .zmin = zmin,
                           .zmax = zmax,
                           .gapValue = gap,
                           .w = width,
                           .h = height,
                           .depthByColor = byColor_->isChecked(),
                           .scanPosition = scanMethod_->currentIndex(),
                           .addMarkers = markers_->isChecked(),
                           .useOpenBitmap = useBitmap_->isChecked()});
  }
  QDialog::accept();
}

}  // namespace plenovia
