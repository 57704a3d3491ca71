// Help, versions and other boxes that only tell something; stopping and leaving.
#pragma once

namespace plenovia {

struct CommandContext;

void CmHelpIndex(CommandContext& context);
void CmHelpSirds(CommandContext& context);
void CmAbout(CommandContext& context);
void CmGraphicsLib(CommandContext& context);
void CmVersion(CommandContext& context);
void CmVideoInformation(CommandContext& context);
void CmStopProcess(CommandContext& context);
void CmExit(CommandContext& context);

}  // namespace plenovia
