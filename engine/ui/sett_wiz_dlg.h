// The wizard's second page: size and depth.
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <array>

#include "engine/fit_depth_range.h"
#include "engine/sirds_settings.h"
#include "images/ui/wizard_dlg.h"

namespace plenovia {

class SettWizDlg : public WizardDlg {
  Q_OBJECT

 public:
  enum class Size { kChosen, kOfSource };
  // A stereogram of a picture or a depth map is as large as that: nothing can be typed there. When
  // `offered` is fitted, the page shows that range instead of the one of `settings`, and says so.
  SettWizDlg(QWidget* parent, const TSirdsSettings& settings, Size size,
             const FittedRange& offered);

  // After "Next >": the record with the numbers as they were typed, in range or not. What is
  // no number is 0, which the page tells while it is typed.
  const TSirdsSettings& Settings() const { return settings_; }

 protected:
  bool OnNext() override;

 private:
  TSirdsSettings Typed() const;
  void TellWhatIsNotTaken();

  TSirdsSettings settings_;
  const Size size_;
  QString offer_;  // a sentence about a fitted range
  std::array<QLineEdit*, 4> numbers_;
  QLabel* note_;
};

}  // namespace plenovia
