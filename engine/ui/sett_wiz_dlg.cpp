#include "engine/ui/sett_wiz_dlg.h"

#include <QGridLayout>

#include "engine/ui/depth_range_hint.h"
#include "platform/leading_number.h"
#include "platform/ui/dialog_controls.h"

namespace plenovia {

namespace {

QLineEdit* MakeEditOf(int id, std::int32_t value) {
  QLineEdit* edit = MakeNumberEdit(id);
  edit->setText(QString::number(value));
  return edit;
}

std::int32_t NumberIn(const QLineEdit& edit) {
  return LeadingNumber(edit.text().toStdString());
}

}  // namespace

SettWizDlg::SettWizDlg(QWidget* parent, const TSirdsSettings& settings)
    : WizardDlg(parent, tr("Specify the dimensions of the resulting Stereogram:")),
      settings_(settings),
      width_(MakeEditOf(104, settings.w)),
      height_(MakeEditOf(105, settings.h)),
      zmin_(MakeEditOf(103, settings.zmin)),
      zmax_(MakeEditOf(114, settings.zmax)) {
  setObjectName(QStringLiteral("page202"));
  auto* grid = new QGridLayout;
  grid->setColumnStretch(4, 1);
  int place = 0;
  const auto add = [&](const QString& text, QLineEdit* edit) {
    const int column = place % 2 * 2;
    grid->addWidget(MakeLabel(text, edit), place / 2, column, Qt::AlignRight);
    grid->addWidget(edit, place++ / 2, column + 1);
  };
  add(tr("Width"), width_);
  add(tr("Height"), height_);
  add(tr("Zmin"), zmin_);
  add(tr("Zmax"), zmax_);
  Content()->addLayout(grid);
  Content()->addStretch();
  AddNote(tr("NOTE: Zmin and Zmax specify the depth resolution for the Stereogram."));
  AddNote(DepthRangeHint());
  AddButtons(BackButton::kShown);
}

void SettWizDlg::AddNote(const QString& text) {
  auto* note = new QLabel(text);
  note->setTextFormat(Qt::PlainText);
  note->setWordWrap(true);
  Content()->addWidget(note);
}

void SettWizDlg::OnNext() {
  settings_.w = NumberIn(*width_);
  settings_.h = NumberIn(*height_);
  settings_.zmin = NumberIn(*zmin_);
  settings_.zmax = NumberIn(*zmax_);
}

}  // namespace plenovia
