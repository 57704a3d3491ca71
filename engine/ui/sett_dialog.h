// The "SIRDS Settings" dialog.
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <array>

#include "engine/sirds_settings.h"

namespace plenovia {

// Edits the record that it was given: when OK is pressed, and as soon as "Restore Defaults" is
// checked. While that box is checked OK leaves the record as it is.
class TSettDialog : public QDialog {
  Q_OBJECT

 public:
  // `settings` outlives the dialog.
  TSettDialog(QWidget* parent, TSirdsSettings& settings);

  void accept() override;

 private:
  QGroupBox* MakeParameters();
  QGroupBox* MakeOptions();
  // Fills the controls from the record.
  void SetupWindow();
  void RestoreClicked(bool checked);
  SirdsSettingsEntry Entry() const;
  // Tells what OK makes of the numbers that it does not take as they were typed.
  void TellReplacements();

  TSirdsSettings& settings_;
  std::array<QLineEdit*, 8> numbers_;  // as kNumbers
  QLabel* note_;
  QCheckBox* markers_;
  QCheckBox* bigMarkers_;
  QCheckBox* useBitmap_;
  QRadioButton* byColor_;
  QRadioButton* byBrightness_;
  QComboBox* scanMethod_;
  QCheckBox* fitRange_;
  QCheckBox* restore_;
};

}  // namespace plenovia
