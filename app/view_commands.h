// Where windows stand, and the colour table.
#pragma once

namespace plenovia {

struct CommandContext;

// Shows the palette of the active picture in the one colour table window.
void CmColorTable(CommandContext& context);

void CmLiveView(CommandContext& context);
void CmCascade(CommandContext& context);
void CmTile(CommandContext& context);
// Lines the minimised windows up at the bottom.
void CmArrangeIcons(CommandContext& context);
void CmCloseAll(CommandContext& context);

}  // namespace plenovia
