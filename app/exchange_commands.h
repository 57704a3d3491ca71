// Pictures to and from other programs and the printer.
#pragma once

namespace plenovia {

struct CommandContext;

void CmPaste(CommandContext& context);
void CmPrint(CommandContext& context);
void CmPrinterSetup(CommandContext& context);

}  // namespace plenovia
