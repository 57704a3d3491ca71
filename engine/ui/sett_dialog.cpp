#include "engine/ui/sett_dialog.h"

#include <QCoreApplication>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>
#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

#include "engine/scan_method.h"
#include "engine/ui/depth_range_hint.h"
#include "platform/ui/dialog_controls.h"
#include "platform/ui/text.h"

namespace plenovia {

namespace {

struct Number {
  int id;
  const char* name;
  std::string SirdsSettingsEntry::*typed;
  std::int32_t TSirdsSettings::*field;
};
constexpr std::array<Number, 8> kNumbers = {{
    {104, QT_TRANSLATE_NOOP("Number", "Width"), &SirdsSettingsEntry::w, &TSirdsSettings::w},
    {105, QT_TRANSLATE_NOOP("Number", "Height"), &SirdsSettingsEntry::h, &TSirdsSettings::h},
    {107, QT_TRANSLATE_NOOP("Number", "Gap Value"), &SirdsSettingsEntry::gapValue,
     &TSirdsSettings::gapValue},
    {101, QT_TRANSLATE_NOOP("Number", "Horizontal displacement"), &SirdsSettingsEntry::dx,
     &TSirdsSettings::dx},
    {102, QT_TRANSLATE_NOOP("Number", "Vertical displacement"), &SirdsSettingsEntry::dy,
     &TSirdsSettings::dy},
    {110, QT_TRANSLATE_NOOP("Number", "Angular displacement"), &SirdsSettingsEntry::da,
     &TSirdsSettings::da},
    {103, QT_TRANSLATE_NOOP("Number", "Zmin"), &SirdsSettingsEntry::zmin, &TSirdsSettings::zmin},
    {114, QT_TRANSLATE_NOOP("Number", "Zmax"), &SirdsSettingsEntry::zmax, &TSirdsSettings::zmax},
}};
constexpr int kNoteLines = 2;

QString NameOf(const Number& number) {
  return QCoreApplication::translate("Number", number.name);
}

}  // namespace

TSettDialog::TSettDialog(QWidget* parent, TSirdsSettings& settings)
    : QDialog(parent),
      settings_(settings),
      note_(MakeNote(kNoteLines)),
      markers_(MakeCheck(109, tr("Add Markers"))),
      bigMarkers_(MakeCheck(116, tr("Large Markers"))),
      useBitmap_(MakeCheck(111, tr("Use Open Bitmap"))),
      byColor_(MakeRadio(108, tr("Depth by Color"))),
      byBrightness_(MakeRadio(112, tr("Depth by Brightness"))),
      scanMethod_(new QComboBox),
      fitRange_(MakeCheck(115, tr("Fit the depth range"))),
      restore_(MakeCheck(106, tr("Restore Defaults"))) {
  setObjectName(QStringLiteral("SETT"));
  setWindowTitle(tr("SIRDS Settings"));
  fitRange_->setToolTip(
      tr("Where Zmin and Zmax do not show all depths of a source, its stereogram is "
         "made with a range that does."));
  scanMethod_->setObjectName(QStringLiteral("list113"));
  for (const ScanMethod* method : ScanMethods()) scanMethod_->addItem(tr(method->title));
  for (std::size_t i = 0; i < kNumbers.size(); ++i) {
    numbers_[i] = MakeNumberEdit(kNumbers[i].id);
    connect(numbers_[i], &QLineEdit::textChanged, this, &TSettDialog::TellReplacements);
  }

  auto* boxes = new QHBoxLayout;
  boxes->addWidget(MakeParameters());
  boxes->addWidget(MakeOptions());
  auto* all = new QVBoxLayout(this);
  all->addLayout(boxes);
  all->addWidget(fitRange_);
  all->addWidget(note_);
  all->addWidget(restore_, 0, Qt::AlignHCenter);
  all->addLayout(MakeOkCancelRow(this));
  all->setSizeConstraint(QLayout::SetFixedSize);

  connect(markers_, &QCheckBox::toggled, bigMarkers_, &QWidget::setEnabled);
  connect(restore_, &QCheckBox::clicked, this, &TSettDialog::RestoreClicked);
  SetupWindow();
  numbers_.front()->setFocus();
  numbers_.front()->selectAll();
}

QGroupBox* TSettDialog::MakeParameters() {
  const auto addBeside = [this](QHBoxLayout& row, std::size_t i) {
    row.addWidget(MakeLabel(NameOf(kNumbers[i]), numbers_[i]));
    row.addWidget(numbers_[i]);
  };
  auto* size = new QHBoxLayout;
  addBeside(*size, 0);
  size->addStretch();
  addBeside(*size, 1);

  auto* numbers = new QGridLayout;
  numbers->setColumnStretch(0, 1);
  for (std::size_t i = 2; i < 6; ++i) {
    const int row = static_cast<int>(i);
    numbers->addWidget(MakeLabel(NameOf(kNumbers[i]), numbers_[i]), row, 0, Qt::AlignRight);
    numbers->addWidget(numbers_[i], row, 1);
  }

  auto* depth = new QGroupBox(tr("Depth Resolution"));
  depth->setToolTip(DepthRangeHint());
  auto* range = new QHBoxLayout(depth);
  addBeside(*range, 6);
  range->addStretch();
  addBeside(*range, 7);

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
  all->addWidget(bigMarkers_);
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
  for (std::size_t i = 0; i < kNumbers.size(); ++i) {
    numbers_[i]->setText(QString::number(settings_.*kNumbers[i].field));
  }
  (settings_.depthSel == kDepthByColor ? byColor_ : byBrightness_)->setChecked(true);
  scanMethod_->setCurrentIndex(settings_.scanMethod - 1);
  markers_->setChecked(settings_.marker != 0);
  bigMarkers_->setChecked(settings_.bigMarker != 0);
  bigMarkers_->setEnabled(markers_->isChecked());
  useBitmap_->setChecked(settings_.useBmp != 0);
  fitRange_->setChecked(settings_.fitRange != 0);
}

void TSettDialog::RestoreClicked(bool checked) {
  if (checked) {
    RestoreDefaults(settings_);
    SetupWindow();
  }
  TellReplacements();
}

SirdsSettingsEntry TSettDialog::Entry() const {
  SirdsSettingsEntry entry;
  for (std::size_t i = 0; i < kNumbers.size(); ++i) {
    entry.*kNumbers[i].typed = numbers_[i]->text().toStdString();
  }
  entry.depthByColor = byColor_->isChecked();
  entry.scanPosition = scanMethod_->currentIndex();
  entry.addMarkers = markers_->isChecked();
  entry.bigMarkers = bigMarkers_->isChecked();
  entry.useOpenBitmap = useBitmap_->isChecked();
  entry.fitRange = fitRange_->isChecked();
  return entry;
}

void TSettDialog::TellReplacements() {
  QStringList sentences;
  const SirdsSettingsEntry entry = Entry();
  // While the defaults are in force OK reads nothing.
  for (const Replacement& replaced :
       restore_->isChecked() ? std::vector<Replacement>() : Replacements(entry)) {
    const auto number = std::find_if(kNumbers.begin(), kNumbers.end(), [&](const Number& each) {
      return each.typed == replaced.typed;
    });
    const QString typed = ToQString(entry.*replaced.typed).trimmed();
    sentences << tr("%1 becomes %2.")
                     .arg((NameOf(*number) + u' ' + typed).trimmed(),
                          QString::number(replaced.becomes));
  }
  note_->setText(sentences.join(u' '));
}

void TSettDialog::accept() {
  if (!restore_->isChecked()) settings_ = Normalise(Entry());
  QDialog::accept();
}

}  // namespace plenovia
