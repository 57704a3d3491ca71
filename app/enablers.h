// When commands of the frame are available.
#pragma once

namespace plenovia {

struct CommandContext;

bool IsIdle(const CommandContext& context);
bool IsBusy(const CommandContext& context);
bool CanSave(const CommandContext& context);
// The active window is a picture's.
bool HasMap(const CommandContext& context);
bool HasPicture(const CommandContext& context);
// A picture or a colour table is active.
bool HasColours(const CommandContext& context);
bool CanPaste(const CommandContext& context);
bool CanMakeSirds(const CommandContext& context);
bool CanMakeAgain(const CommandContext& context);
bool HasWindows(const CommandContext& context);

}  // namespace plenovia
