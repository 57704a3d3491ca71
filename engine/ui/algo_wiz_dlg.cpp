#include "engine/ui/algo_wiz_dlg.h"

#include "engine/scan_method.h"
#include "platform/ui/dialog_controls.h"

namespace plenovia {

AlgoWizDlg::AlgoWizDlg(QWidget* parent, const TSirdsSettings& settings)
    : WizardDlg(parent,
                tr("Select one of the following scan methods to determine the way the Stereogram "
                   "image will be generated:")),
      settings_(settings) {
  setObjectName(QStringLiteral("page204"));
  NextButton()->setText(tr("Make SIRDS"));
  constexpr int kFirstId = 103;
  for (const ScanMethod* method : ScanMethods()) {
    const int place = static_cast<int>(methods_.size());
    methods_.push_back(MakeRadio(kFirstId + place, tr(method->choice)));
    Content()->addWidget(methods_.back());
    if (settings_.scanMethod != place + 1) continue;
    methods_.back()->setChecked(true);
    methods_.back()->setFocus();
  }
  Content()->addStretch();
  AddButtons(BackButton::kShown);
}

bool AlgoWizDlg::OnNext() {
  for (std::size_t i = 0; i < methods_.size(); ++i) {
    if (methods_[i]->isChecked()) settings_.scanMethod = static_cast<int>(i) + 1;
  }
  return true;
}

}  // namespace plenovia
