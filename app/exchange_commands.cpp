#include "app/exchange_commands.h"

#include <QPointer>
#include <memory>
#include <optional>
#include <utility>

#include "app/command_context.h"
#include "app/desk.h"
#include "app/program_state.h"
#include "app/status_bar.h"
#include "engine/ui/sirds_wnd.h"
#include "images/ui/printer_int.h"
#include "platform/ui/resource_pictures.h"
#include "platform/ui/text.h"

namespace plenovia {

namespace {

constexpr QSize kWindowBeforePicture(200, 40);

// False when the active window takes nothing that is on the clipboard.
bool PasteIntoActive(CommandContext& context) {
  Document* active = context.desk.Active();
  if (active == nullptr) return false;
  ClipboardPictures& clipboard = context.state.clipboard;
  const QList<QByteArray> formats = active->PasteFormats();
  const QByteArray format = clipboard.FirstOffered(formats);
  if (format.isEmpty()) return false;
  // A text beside a picture is about the picture.
  if (format != formats.front() && clipboard.HasPicture()) return false;
  const QPointer<Document> target(active);
  clipboard.ReadBytes(format, [&context, target](const std::optional<QByteArray>& bytes) {
    if (!bytes) {
      context.status.SetMessage(
          Commands::tr("The program that owns the clipboard does not answer."));
    } else if (target && !target->Paste(*bytes)) {
      context.status.SetMessage(Commands::tr("There is nothing to paste on the clipboard."));
    }
  });
  return true;
}

}  // namespace

void CmPaste(CommandContext& context) {
  if (PasteIntoActive(context)) return;
  context.state.clipboard.ReadPicture([&context](Result<IndexedImage> picture) {
    if (!picture) {
      context.status.SetMessage(ToQString(picture.error().message));
      return;
    }
    auto* window = new TSirdsWnd(&context.desk.Area(), Commands::tr("untitled"), &context.frame,
                                 nullptr, kWindowBeforePicture, &context.state.settings);
    context.desk.Adopt(*window);
    window->SetImage(std::make_shared<const IndexedImage>(std::move(*picture)));
  });
}

void CmPrint(CommandContext& context) {
  const Document* active = context.desk.Active();
  const auto picture = active != nullptr ? active->Picture() : nullptr;
  if (!picture) return;
  const QString jobName = active->GetTitle();
  ShowBusyCursor(context.frame, true);
  context.state.printer->PrintPicture(
      &context.frame, *picture, jobName,
      [&context](const QString& text) { context.status.SetMessage(text); });
  ShowBusyCursor(context.frame, false);
}

void CmPrinterSetup(CommandContext& context) {
  context.state.printer->PrinterSetup(&context.frame);
}

}  // namespace plenovia
