#include "engine/ui/sett_wiz_dlg.h"

#include <QCoreApplication>
#include <QGridLayout>
#include <cstdint>

#include "engine/ui/depth_range_hint.h"
#include "platform/leading_number.h"
#include "platform/limits.h"
#include "platform/ui/dialog_controls.h"

namespace plenovia {

namespace {

struct Number {
  int id;
  const char* name;
  std::int32_t TSirdsSettings::*field;
};
// Width and height come first.
constexpr std::array<Number, 4> kNumbers = {{
    {104, QT_TRANSLATE_NOOP("Number", "Width"), &TSirdsSettings::w},
    {105, QT_TRANSLATE_NOOP("Number", "Height"), &TSirdsSettings::h},
    {103, QT_TRANSLATE_NOOP("Number", "Zmin"), &TSirdsSettings::zmin},
    {114, QT_TRANSLATE_NOOP("Number", "Zmax"), &TSirdsSettings::zmax},
}};
constexpr std::size_t kFirstOfDepth = 2;
constexpr int kNoteLines = 3;

QString NameOf(const Number& number) {
  return QCoreApplication::translate("Number", number.name);
}

}  // namespace

SettWizDlg::SettWizDlg(QWidget* parent, const TSirdsSettings& settings, Size size,
                       const FittedRange& offered)
    : WizardDlg(parent, tr("Specify the dimensions of the resulting Stereogram:")),
      settings_(settings),
      size_(size),
      note_(MakeNote(kNoteLines)) {
  setObjectName(QStringLiteral("page202"));
  if (offered.fitted) {
    offer_ = FittedRangeText(offered, settings);
    settings_.zmin = offered.zmin;
    settings_.zmax = offered.zmax;
  }
  auto* grid = new QGridLayout;
  grid->setColumnStretch(4, 1);
  for (std::size_t i = 0; i < kNumbers.size(); ++i) {
    const int row = static_cast<int>(i) / 2;
    const int column = static_cast<int>(i) % 2 * 2;
    numbers_[i] = MakeNumberEdit(kNumbers[i].id);
    numbers_[i]->setText(QString::number(settings_.*kNumbers[i].field));
    numbers_[i]->setEnabled(i >= kFirstOfDepth || size_ == Size::kChosen);
    grid->addWidget(MakeLabel(NameOf(kNumbers[i]), numbers_[i]), row, column, Qt::AlignRight);
    grid->addWidget(numbers_[i], row, column + 1);
    connect(numbers_[i], &QLineEdit::textChanged, this, &SettWizDlg::TellWhatIsNotTaken);
  }
  Content()->addLayout(grid);
  Content()->addWidget(note_);
  Content()->addStretch();
  for (const QString& text :
       {tr("NOTE: Zmin and Zmax specify the depth resolution for the Stereogram."),
        DepthRangeHint()}) {
    auto* note = new QLabel(text);
    note->setTextFormat(Qt::PlainText);
    note->setWordWrap(true);
    Content()->addWidget(note);
  }
  AddButtons(BackButton::kShown);
  TellWhatIsNotTaken();
  QLineEdit* first = numbers_[size_ == Size::kChosen ? 0 : kFirstOfDepth];
  first->setFocus();
  first->selectAll();
}

TSirdsSettings SettWizDlg::Typed() const {
  TSirdsSettings typed = settings_;
  for (std::size_t i = 0; i < kNumbers.size(); ++i) {
    typed.*kNumbers[i].field = LeadingNumber(numbers_[i]->text().toStdString());
  }
  return typed;
}

void SettWizDlg::TellWhatIsNotTaken() {
  QStringList sentences;
  const TSirdsSettings typed = Typed();
  if (size_ == Size::kOfSource) {
    sentences << tr("Width and height are those of the picture or depth map.");
  }
  if (!offer_.isEmpty()) sentences << offer_;
  for (std::size_t i = 0; i < kNumbers.size(); ++i) {
    const std::int32_t value = typed.*kNumbers[i].field;
    const QString text = numbers_[i]->text();
    if (SaysNumber(text.toStdString(), value)) continue;
    sentences << tr("%1 becomes %2.")
                     .arg((NameOf(kNumbers[i]) + u' ' + text.trimmed()).trimmed(),
                          QString::number(value));
  }
  if (size_ == Size::kChosen && !CheckPictureSize(typed.w, typed.h)) {
    sentences << tr("A stereogram of %1 x %2 pixels cannot be made.").arg(typed.w).arg(typed.h);
  }
  note_->setText(sentences.join(u' '));
}

bool SettWizDlg::OnNext() {
  settings_ = Typed();
  return true;
}

}  // namespace plenovia
