#include "images/ui/source_wiz_dlg.h"

#include <QFile>
#include <QFileInfo>

#include "codec/picture_format.h"
#include "images/ui/math_dlg.h"
#include "platform/ui/dialog_controls.h"
#include "platform/ui/file_dialogs.h"
#include "platform/ui/message_box.h"
#include "platform/ui/text.h"

namespace plenovia {

namespace {

constexpr int kAllPictures = 4;  // position in the list of file types

}  // namespace

SourceWizDlg::SourceWizDlg(QWidget* parent, const WizardSource& source,
                           const std::filesystem::path& settingsFile)
    : WizardDlg(parent, tr("Select a source for generating the Stereogram.  Your choices are:")),
      source_(source),
      settingsFile_(settingsFile),
      types_{MakeRadio(102, tr("From Bitmap image")), MakeRadio(103, tr("From Depth Map")),
             MakeRadio(104, tr("From Math Library"))},
      name_(MakeEdit(105)) {
  setObjectName(QStringLiteral("page201"));
  for (std::size_t i = 0; i < types_.size(); ++i) {
    Content()->addWidget(types_[i]);
    const auto type = static_cast<WizardSourceType>(i + 1);
    connect(types_[i], &QRadioButton::clicked, this, [this, type] { Choose(type); });
  }
  Content()->addStretch();
  Content()->addWidget(MakeLabel(tr("Selected Source:"), name_));
  Content()->addWidget(name_);

  connect(name_, &QLineEdit::textChanged, this,
          [this](const QString& text) { NextButton()->setEnabled(!text.isEmpty()); });
  NextButton()->setEnabled(!source_.name.isEmpty());
  name_->setText(source_.name);
  CheckType();
  AddButtons(BackButton::kNone);
}

void SourceWizDlg::CheckType() {
  QRadioButton* type = types_.at(static_cast<std::size_t>(source_.type - 1));
  type->setChecked(true);
  type->setFocus();
}

void SourceWizDlg::Choose(WizardSourceType type) {
  if (const auto name = Ask(type)) {
    source_.type = type;
    name_->setText(*name);
  }
  CheckType();
}

std::optional<QString> SourceWizDlg::Ask(WizardSourceType type) {
  FileQuestion question;
  question.title = tr("Select File");
  switch (type) {
    case kBitmapSource:
      question.filters = ToQString(WizardFileTypes());
      question.preselected = kAllPictures;
      question.defaultExtension = QStringLiteral("bmp");
      return AskOpenFile(this, question);
    case kDepthMapSource:
      question.filters = tr("Depth Map File (*.RDS)|*.rds|");
      question.defaultExtension = QStringLiteral("rds");
      return AskOpenFile(this, question);
    case kFigureSource:
      break;
  }
  return AskFigure();
}

std::optional<QString> SourceWizDlg::AskFigure() {
  MathDlg dialog(this);
  if (dialog.exec() != QDialog::Accepted || dialog.SelectedIndex() < 0) return std::nullopt;
  source_.figure = dialog.SelectedIndex();
  return dialog.SelectedTitle();
}

QString SourceWizDlg::Obstacle(const QString& file) {
  const QFileInfo info(file);
  if (!info.exists()) return tr("There is no file \"%1\".").arg(file);
  if (!info.isFile()) return tr("\"%1\" is not a file that can be read.").arg(file);
  QFile opened(file);
  if (opened.open(QIODevice::ReadOnly)) return {};
  return tr("The file \"%1\" cannot be read: %2.").arg(file, opened.errorString());
}

bool SourceWizDlg::OnNext() {
  const QString obstacle = source_.type == kFigureSource ? QString() : Obstacle(name_->text());
  if (!obstacle.isEmpty()) {
    ShowMessage(this, obstacle, windowTitle(), MessageIcon::kExclamation);
    name_->setFocus();
    name_->selectAll();
    return false;
  }
  source_.name = name_->text();
  StoreWizardSource(source_, settingsFile_);
  return true;
}

}  // namespace plenovia
