#include "engine/ui/algo_wiz_dlg.h"

#include "platform/ui/dialog_controls.h"

namespace plenovia {

AlgoWizDlg::AlgoWizDlg(QWidget* parent, const TSirdsSettings& settings)
    : WizardDlg(parent,
                tr("Select one of the following scan methods to determine the way the Stereogram "
                   "image will be generated:")),
      settings_(settings),
      methods_{MakeRadio(103, tr("Left-to-right")), MakeRadio(104, tr("McMahon (recommended)")),
               MakeRadio(105, tr("Feucht"))} {
  setObjectName(QStringLiteral("page204"));
  NextButton()->setText(tr("Make SIRDS"));
  for (std::size_t i = 0; i < methods_.size(); ++i) {
    Content()->addWidget(methods_[i]);
    if (settings_.scanMethod != static_cast<int>(i) + kLeftToRight) continue;
    methods_[i]->setChecked(true);
    methods_[i]->setFocus();
  }
  Content()->addStretch();
  AddButtons(BackButton::kShown);
}

void AlgoWizDlg::OnNext() {
  for (std::size_t i = 0; i < methods_.size(); ++i) {
    if (methods_[i]->isChecked()) settings_.scanMethod = static_cast<int>(i) + kLeftToRight;
  }
}

}  // namespace plenovia
