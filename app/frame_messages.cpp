#include "app/frame_messages.h"

#include <QCoreApplication>
#include <cstdint>

#include "app/busy_state.h"
#include "app/command_context.h"
#include "app/desk.h"
#include "app/program_state.h"
#include "app/save_commands.h"
#include "app/sirds_commands.h"
#include "app/status_bar.h"
#include "images/ui/popup_hint.h"
#include "platform/free_memory.h"
#include "platform/ui/private_message.h"
#include "platform/ui/resource_pictures.h"
#include "platform/ui/text.h"

namespace plenovia {

namespace {

constexpr std::int64_t kBytesInK = 1000;

void NeedPatterns(CommandContext& context, PrivateMessage& message) {
  auto* window = qobject_cast<Document*>(message.window());
  if (window == nullptr) window = context.desk.Active();
  if (window != nullptr) window->SetPatternLibrary(context.state.patterns.get());
}

void UpdateFrame(CommandContext& context, PrivateMessage&) {
  RepaintAll(context);
}

void ColorTableClosed(CommandContext& context, PrivateMessage&) {
  context.desk.SetColourTable(nullptr);
}

void SaveChild(CommandContext& context, PrivateMessage& message) {
  auto* window = qobject_cast<QMdiSubWindow*>(message.window());
  if (window == nullptr) return;
  context.desk.Area().setActiveSubWindow(window);
  CmFileSave(context);
}

void UpdateStatus(CommandContext& context, PrivateMessage&) {
  TCStatusBar& status = context.status;
  const Document* active = context.desk.Active();
  const DocumentStatus shown =
      active != nullptr ? active->Status() : DocumentStatus{QString(), QString()};
  status.SetImageText(shown.size);
  if (shown.message) status.SetMessage(*shown.message);
  status.SetFreeText(Commands::tr("Free: %1 K").arg(FreeMemoryBytes() / kBytesInK));
  status.repaint();
  Q_EMIT context.desk.StateChanged();
}

// What the engine says, for the translators to find.
[[maybe_unused]] constexpr const char* kProgressTexts[] = {
    QT_TRANSLATE_NOOP("Progress", "Generating Dots"),
    QT_TRANSLATE_NOOP("Progress", "Shifting Dots"),
};

QString ProgressText(const ProgressInfo& info) {
  return QCoreApplication::translate("Progress", info.text.c_str());
}

void Progress(CommandContext& context, PrivateMessage& message) {
  TCStatusBar& status = context.status;
  const ProgressInfo& info = *message.progress();
  const int percent = info.total > 0 ? static_cast<int>(info.done * 100 / info.total) : 0;
  switch (static_cast<ProgressPhase>(message.value())) {
    case ProgressPhase::kStart:
      status.ClearHint();
      context.busy.OperationBegins();
      ShowBusyCursor(context.frame, true);
      status.SetMessage(ProgressText(info));
      status.SetProgress(0);
      break;
    case ProgressPhase::kEnd:
      status.SetProgress(100);
      status.SetMessage({});
      status.SetProgress(0);
      ShowBusyCursor(context.frame, false);
      context.busy.OperationEnds();
      break;
    case ProgressPhase::kFirstStep:
    case ProgressPhase::kStep:
      status.SetMessage(ProgressText(info));
      status.SetProgress(percent);
      break;
  }
}

void AddPattern(CommandContext& context, PrivateMessage& message) {
  const Result<void> added = AddPatternFromPicture(context);
  message.SetResult(added ? 1 : 0);
  if (!added) message.SetReason(ToSentence(added.error().message));
}

void ButtonHint(CommandContext& context, PrivateMessage& message) {
  context.hint.Report(message.value());
}

void UseRangeAsSet(CommandContext& context, PrivateMessage&) {
  context.state.settings.fitRange = 0;
  Q_EMIT context.state.SettingsChanged();
}

struct MessageRow {
  PrivateMessageNumber number;
  void (*handler)(CommandContext&, PrivateMessage&);
};

constexpr MessageRow kMessages[] = {
    {WM_NEEDPATTERNS, &NeedPatterns},   {WM_UPDATEFRAME, &UpdateFrame},
    {WM_SAVECHILD, &SaveChild},         {WM_COLORTABLECLOSED, &ColorTableClosed},
    {WM_UPDATESTATUS, &UpdateStatus},   {WM_PROGRESS, &Progress},
    {WM_ADDPATTERN, &AddPattern},       {WM_BUTTONHINT, &ButtonHint},
    {WM_USERANGEASSET, &UseRangeAsSet},
};

}  // namespace

void HandlePrivateMessage(CommandContext& context, PrivateMessage& message) {
  for (const MessageRow& row : kMessages) {
    if (row.number == message.number()) row.handler(context, message);
  }
}

}  // namespace plenovia
