#include "platform/ui/file_dialogs.h"

#include <QCheckBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QStandardPaths>
#include <QUrl>

#include "platform/ui/message_box.h"

namespace plenovia {

namespace {

// "gif" for an entry "GIF Files (*.GIF *.gif)".
QString ExtensionOf(const QString& entry) {
  const qsizetype dot = entry.lastIndexOf(u'.');
  return dot < 0 ? QString() : entry.mid(dot + 1, entry.lastIndexOf(u')') - dot - 1);
}

// Shows below the name what `warning` says of the file that would be saved.
void AddWarning(QFileDialog& dialog, const std::function<QString(const QString&)>& warning) {
  auto* layout = qobject_cast<QGridLayout*>(dialog.layout());
  auto* name = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
  if (layout == nullptr || name == nullptr) return;
  auto* label = new QLabel(&dialog);
  label->setObjectName(QStringLiteral("warning"));
  label->setWordWrap(true);
  layout->addWidget(label, layout->rowCount(), 0, 1, -1);
  const auto tell = [&dialog, name, label, warning] {
    const bool hasExtension = !QFileInfo(name->text()).suffix().isEmpty();
    label->setText(
        warning(hasExtension ? name->text() : name->text() + u'.' + dialog.defaultSuffix()));
  };
  QObject::connect(name, &QLineEdit::textChanged, label, tell);
  QObject::connect(&dialog, &QFileDialog::filterSelected, label, tell);
}

// Adds the box of the question's choice. It keeps what is chosen once the dialog is accepted.
void AddChoice(QFileDialog& dialog, const FileQuestion& question) {
  auto* layout = qobject_cast<QGridLayout*>(dialog.layout());
  if (layout == nullptr || question.choice.isEmpty()) return;
  auto* box = new QCheckBox(question.choice, &dialog);
  box->setObjectName(QStringLiteral("choice"));
  box->setChecked(*question.checked);
  layout->addWidget(box, layout->rowCount(), 0, 1, -1);
  QObject::connect(&dialog, &QDialog::accepted, box,
                   [box, checked = question.checked] { *checked = box->isChecked(); });
}

// Those that are there, home, desktop and documents, and `own` if it is not empty.
QList<QUrl> Places(QList<QUrl> places, const QString& own) {
  QStringList folders{QDir::homePath()};
  folders << QStandardPaths::writableLocation(QStandardPaths::DesktopLocation)
          << QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  if (!own.isEmpty()) folders << own;
  for (const QString& folder : folders) {
    const QUrl url = QUrl::fromLocalFile(folder);
    if (QFileInfo(folder).isDir() && !places.contains(url)) places << url;
  }
  return places;
}

std::optional<QString> Ask(QFileDialog& dialog, const FileQuestion& question) {
  if (question.extend) {
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    question.extend(dialog);
  }
  const QStringList entries = FilterEntries(question.filters);
  dialog.setNameFilters(entries);
  const qsizetype position = question.preselected - 1;
  if (position >= 0 && position < entries.size()) dialog.selectNameFilter(entries[position]);
  dialog.setDefaultSuffix(question.defaultExtension.toLower());
  if (!question.suggestion.isEmpty()) dialog.selectFile(question.suggestion);
  if (!question.folder.isEmpty() && QFileInfo(question.folder).isDir()) {
    dialog.setDirectory(question.folder);
  }
  // Qt keeps the side bar for the dialogs of all programs.
  const QList<QUrl> usual = dialog.sidebarUrls();
  dialog.setSidebarUrls(Places(usual, question.place));
  const bool accepted = dialog.exec() == QDialog::Accepted;
  dialog.setSidebarUrls(usual);
  if (!accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
  return dialog.selectedFiles().constFirst();
}

}  // namespace

QStringList FilterEntries(const QString& notation) {
  const QStringList parts = notation.split(u'|', Qt::SkipEmptyParts);
  QStringList entries;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    QString description = parts[i];
    const qsizetype bracket = description.lastIndexOf(u'(');
    if (bracket > 0) description.truncate(bracket);
    const QString lower = parts[i + 1].toLower();
    entries << QStringLiteral("%1 (%2 %3)").arg(description.trimmed(), lower.toUpper(), lower);
  }
  return entries;
}

std::optional<QString> AskOpenFile(QWidget* owner, const FileQuestion& question) {
  QFileDialog dialog(owner, question.title);
  dialog.setAcceptMode(QFileDialog::AcceptOpen);
  dialog.setFileMode(QFileDialog::ExistingFile);
  return Ask(dialog, question);
}

std::optional<QString> AskSaveFile(QWidget* owner, const FileQuestion& question) {
  QFileDialog dialog(owner, question.title);
  dialog.setOption(QFileDialog::DontUseNativeDialog);
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, [&dialog](const QString& entry) {
    dialog.setDefaultSuffix(ExtensionOf(entry));
  });
  dialog.setFileMode(QFileDialog::AnyFile);
  dialog.setOption(QFileDialog::DontConfirmOverwrite);
  if (question.warning) AddWarning(dialog, question.warning);
  AddChoice(dialog, question);
  for (auto path = Ask(dialog, question); path; path = Ask(dialog, question)) {
    const QString folder = QFileInfo(*path).absolutePath();
    if (QFileInfo(folder).isDir()) return path;
    ShowMessage(owner, QFileDialog::tr("The folder %1 does not exist.").arg(folder), question.title,
                MessageIcon::kExclamation);
  }
  return std::nullopt;
}

}  // namespace plenovia
