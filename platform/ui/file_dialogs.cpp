#include "platform/ui/file_dialogs.h"

#include <QFileDialog>

namespace plenovia {

namespace {

// "gif" for an entry "GIF Files (*.GIF *.gif)".
QString ExtensionOf(const QString& entry) {
  const qsizetype dot = entry.lastIndexOf(u'.');
  return dot < 0 ? QString() : entry.mid(dot + 1, entry.lastIndexOf(u')') - dot - 1);
}

std::optional<QString> Ask(QFileDialog& dialog, const FileQuestion& question) {
  const QStringList entries = FilterEntries(question.filters);
  dialog.setNameFilters(entries);
  const qsizetype position = question.preselected - 1;
  if (position >= 0 && position < entries.size()) dialog.selectNameFilter(entries[position]);
  dialog.setDefaultSuffix(question.defaultExtension.toLower());
  if (!question.suggestion.isEmpty()) dialog.selectFile(question.suggestion);
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
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
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, [&dialog](const QString& entry) {
    dialog.setDefaultSuffix(ExtensionOf(entry));
  });
  dialog.setFileMode(QFileDialog::AnyFile);
  dialog.setOption(QFileDialog::DontConfirmOverwrite);
  return Ask(dialog, question);
}

}  // namespace plenovia
