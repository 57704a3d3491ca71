#include "images/ui/patt_wiz_dlg.h"

namespace plenovia {

PattWizDlg::PattWizDlg(QWidget* parent, TSirdPatt& library)
    : WizardDlg(parent, tr("Select the background pattern for the Stereogram:")),
      browser_(new PatternBrowser(library)) {
  setObjectName(QStringLiteral("page203"));
  Content()->addWidget(browser_);
  Content()->addStretch();
  AddButtons(BackButton::kShown);
}

}  // namespace plenovia
