#include "depthmap/ui/steps_dialog.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <algorithm>

#include "depthmap/level_choice.h"
#include "platform/ui/dialog_controls.h"

namespace plenovia {

namespace {

constexpr int kUsualSteps = 12;

struct FormText {
  StepForm form;
  const char* text;
};

constexpr FormText kForms[] = {
    {StepForm::kCone, QT_TRANSLATE_NOOP("plenovia::StepsDialog", "Slope to the middle")},
    {StepForm::kDome, QT_TRANSLATE_NOOP("plenovia::StepsDialog", "Round")},
    {StepForm::kRampRight, QT_TRANSLATE_NOOP("plenovia::StepsDialog", "Ramp to the right")},
    {StepForm::kRampLeft, QT_TRANSLATE_NOOP("plenovia::StepsDialog", "Ramp to the left")},
    {StepForm::kRampDown, QT_TRANSLATE_NOOP("plenovia::StepsDialog", "Ramp downwards")},
    {StepForm::kRampUp, QT_TRANSLATE_NOOP("plenovia::StepsDialog", "Ramp upwards")},
};

}  // namespace

StepsDialog::StepsDialog(QWidget* parent, std::int32_t level)
    : QDialog(parent),
      form_(new QComboBox),
      steps_(MakeSpinBox("steps", 2, kMostSteps, kUsualSteps)),
      from_(MakeSpinBox("from", kLowestLevel, kHighestLevel, level)),
      to_(MakeSpinBox("to", kLowestLevel, kHighestLevel,
                      LevelThatStandsOut(std::clamp(level, kLowestLevel, kHighestLevel)))) {
  setWindowTitle(tr("Make Steps"));
  form_->setObjectName(QStringLiteral("form"));
  for (const FormText& form : kForms) form_->addItem(tr(form.text));
  auto* layout = new QFormLayout(this);
  layout->addRow(tr("&Form:"), form_);
  layout->addRow(tr("&Steps:"), steps_);
  layout->addRow(tr("&Outside level:"), from_);
  layout->addRow(tr("&Top level:"), to_);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  layout->addRow(buttons);
}

StepPlan StepsDialog::Plan() const {
  return {kForms[form_->currentIndex()].form, steps_->value(), from_->value(), to_->value()};
}

}  // namespace plenovia
