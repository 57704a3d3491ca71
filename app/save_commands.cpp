#include "app/save_commands.h"

#include <QFileInfo>
#include <QPointer>

#include "app/command_context.h"
#include "app/desk.h"
#include "app/program_state.h"
#include "app/replaced_file.h"
#include "app/status_bar.h"
#include "codec/picture_format.h"
#include "documents/ui/document.h"
#include "platform/ui/busy_cursor.h"
#include "platform/ui/file_dialogs.h"
#include "platform/ui/message_box.h"
#include "platform/ui/text.h"

namespace plenovia {

namespace {

bool IsDepthMap(const Document& document) {
  return document.GetWindowKind() == kDepthMapWindow;
}

// `name` with the extension of `format` in place of its own.
QString WithExtension(const QString& name, GraphicFormat format) {
  const QFileInfo file(name);
  const QString base =
      file.completeBaseName().isEmpty() ? file.fileName() : file.completeBaseName();
  const QString extension = ToQString(SaveExtension(format)).toLower();
  const QString folder = name.contains(u'/') ? file.path() + u'/' : QString();
  return QStringLiteral("%1%2.%3").arg(folder, base, extension);
}

// Whether the document's own file is of a kind that is written.
bool CanWriteTo(const Document& document, const QString& path) {
  if (path.isEmpty()) return false;
  return IsDepthMap(document) || FormatOfExtension(path.toStdString()) != GraphicFormat::kUnknown;
}

// Told in the dialog while a stereogram is about to lose its dots.
QString JpegWarning(const QString& path) {
  return FormatOfPath(path.toStdString()) == GraphicFormat::kJpeg
             ? Commands::tr(
                   "JPEG blurs the dots of a stereogram, and its depth with them. "
                   "PNG keeps every dot.")
             : QString();
}

std::optional<QString> AskFile(CommandContext& context, const Document& document) {
  const GraphicFormat format = IsDepthMap(document)
                                   ? GraphicFormat::kDepthMap
                                   : static_cast<GraphicFormat>(context.state.saveFormat);
  FileQuestion question;
  question.title = Commands::tr("Save");
  question.filters = ToQString(SaveFileTypes());
  question.preselected = static_cast<int>(format);
  question.defaultExtension = ToQString(SaveExtension(format));
  question.suggestion = WithExtension(document.ProposedFile(), format);
  if (document.IsStereogram()) question.warning = &JpegWarning;
  if (document.MadeBy() != nullptr) {
    question.choice = Commands::tr("Tell in the file what &made the stereogram (PNG, GIF, JPEG)");
    question.checked = &context.state.keepsRecipes;
  }
  return AskSaveFile(&context.frame, question);
}

void SaveInto(CommandContext& context, Document& document, const QString& path) {
  RepaintAll(context);
  const BusyCursor busy(context.frame);
  const GraphicFormat format = FormatOfPath(path.toStdString());
  context.state.lastFormat = static_cast<int>(format);
  context.status.SetMessage(document.SavingText(path));
  const bool own = QFileInfo(path) == QFileInfo(document.File());
  ReplacedFile replaced(own ? QString() : path);
  document.KeepRecipe(context.state.keepsRecipes);
  const Result<void> written = document.Save(path);
  context.status.SetMessage(QString());
  if (!written) {
    ShowMessage(
        &context.frame,
        Commands::tr("%1 could not be saved.\r%2").arg(path, ToQString(written.error().message)),
        Commands::tr("Error"), MessageIcon::kStop);
    return;
  }
  context.state.NoteFile(path);
  const PictureFormat* known = FindFormat(format);
  if (!IsDepthMap(document) && known != nullptr && known->lossless) {
    context.state.saveFormat = static_cast<int>(format);
  }
  QString told = Commands::tr("Saved as %1.").arg(QFileInfo(path).fileName());
  if (!own && !replaced.MoveToTrash()) {
    told += u' ' + Commands::tr("The file that was there could not be put into the trash.");
  }
  context.status.ShowNote(told, QFileInfo(path).absolutePath());
}

void Save(CommandContext& context, bool asks) {
  context.status.ClearHint();
  const QPointer<Document> active = context.desk.Active();
  if (active && active->CanSave()) {
    std::optional<QString> path = active->File();
    if (!asks && !path->isEmpty() && active->IsSaved()) {
      context.status.ShowNote(Commands::tr("Nothing has changed since %1 was opened or saved.")
                                  .arg(QFileInfo(*path).fileName()));
      return;
    }
    if (asks || !CanWriteTo(*active, *path)) path = AskFile(context, *active);
    if (path && active) SaveInto(context, *active, *path);
  }
  RepaintAll(context);
}

}  // namespace

void CmFileSave(CommandContext& context) {
  Save(context, false);
}

void CmFileSaveAs(CommandContext& context) {
  Save(context, true);
}

QString ProposedStereogramFile(const Document& source) {
  const QFileInfo file(source.ProposedFile());
  const QString folder = source.ProposedFile().contains(u'/') ? file.path() + u'/' : QString();
  return QStringLiteral("%1%2-stereogram.png").arg(folder, file.completeBaseName());
}

}  // namespace plenovia
