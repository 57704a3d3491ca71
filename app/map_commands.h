// The commands of the frame about depth maps.
#pragma once

namespace plenovia {

struct CommandContext;

// Asks for another size of the active depth map; new maps get it from then on.
void CmMapSize(CommandContext& context);

}  // namespace plenovia
