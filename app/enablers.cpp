#include "app/enablers.h"

#include "app/busy_state.h"
#include "app/command_context.h"
#include "app/desk.h"
#include "app/program_state.h"

namespace plenovia {

namespace {

int ActiveKind(const CommandContext& context) {
  const Document* active = context.desk.Active();
  return active != nullptr ? active->GetWindowKind() : 0;
}

}  // namespace

bool IsIdle(const CommandContext& context) {
  return !context.busy.IsBusy();
}
bool IsBusy(const CommandContext& context) {
  return context.busy.IsBusy();
}

bool CanSave(const CommandContext& context) {
  const Document* active = context.desk.Active();
  return IsIdle(context) && active != nullptr && active->CanSave();
}

bool HasPicture(const CommandContext& context) {
  return IsIdle(context) && ActiveKind(context) == kPictureWindow;
}

bool HasMap(const CommandContext& context) {
  return ActiveKind(context) == kDepthMapWindow;
}

bool HasColours(const CommandContext& context) {
  const int kind = ActiveKind(context);
  return IsIdle(context) && (kind == kPictureWindow || kind == kColourTableWindow);
}

bool CanPaste(const CommandContext& context) {
  const Document* active = context.desk.Active();
  const ClipboardPictures& clipboard = context.state.clipboard;
  return IsIdle(context) &&
         (clipboard.HasPicture() ||
          (active != nullptr && !clipboard.FirstOffered(active->PasteFormats()).isEmpty()));
}

bool CanMakeSirds(const CommandContext& context) {
  const int kind = ActiveKind(context);
  return IsIdle(context) && (kind == kPictureWindow || kind == kDepthMapWindow);
}

bool CanMakeAgain(const CommandContext& context) {
  const Document* active = context.desk.Active();
  return IsIdle(context) && active != nullptr && active->IsStereogram() &&
         active->MadeBy() != nullptr;
}

bool HasWindows(const CommandContext& context) {
  return !context.desk.Area().subWindowList().isEmpty();
}

}  // namespace plenovia
