// The wizard's last page: the scan method.
#pragma once

#include <QRadioButton>
#include <vector>

#include "engine/sirds_settings.h"
#include "images/ui/wizard_dlg.h"

namespace plenovia {

class AlgoWizDlg : public WizardDlg {
  Q_OBJECT

 public:
  AlgoWizDlg(QWidget* parent, const TSirdsSettings& settings);

  // After "Make SIRDS": the record with the chosen scan method.
  const TSirdsSettings& Settings() const { return settings_; }

 protected:
  bool OnNext() override;

 private:
  TSirdsSettings settings_;
  std::vector<QRadioButton*> methods_;  // in the order of ScanMethods()
};

}  // namespace plenovia
