// The wizard's third page: the pattern.
#pragma once

#include "images/sird_patt.h"
#include "images/ui/pattern_browser.h"
#include "images/ui/wizard_dlg.h"

namespace plenovia {

// The library's current pattern follows the browsing; when the page closes by "Next >" or "< Back",
// it is again the one that was current when the page opened.
class PattWizDlg : public WizardDlg {
  Q_OBJECT

 public:
  // `library` outlives the page.
  PattWizDlg(QWidget* parent, TSirdPatt& library);

  // The position of the pattern that is shown.
  int Shown() const { return browser_->Shown(); }

 protected:
  bool OnNext() override {
    browser_->RestoreOpening();
    return true;
  }
  void OnBack() override { browser_->RestoreOpening(); }

 private:
  PatternBrowser* browser_;
};

}  // namespace plenovia
