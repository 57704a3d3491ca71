// The wizard's second page: size and depth.
#pragma once

#include <QLineEdit>

#include "engine/sirds_settings.h"
#include "images/ui/wizard_dlg.h"

namespace plenovia {

class SettWizDlg : public WizardDlg {
  Q_OBJECT

 public:
  SettWizDlg(QWidget* parent, const TSirdsSettings& settings);

  // After "Next >": the record with the numbers as they were typed, whatever their range.
  const TSirdsSettings& Settings() const { return settings_; }

 protected:
  void OnNext() override;

 private:
  void AddNote(const QString& text);

  TSirdsSettings settings_;
  QLineEdit* width_;
  QLineEdit* height_;
  QLineEdit* zmin_;
  QLineEdit* zmax_;
};

}  // namespace plenovia
