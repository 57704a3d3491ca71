// Saving documents.
#pragma once

#include <QString>

namespace plenovia {

class Document;
struct CommandContext;

// Saves the active document into its own file; asks for one when it has none.
void CmFileSave(CommandContext& context);
// Asks for a file and saves the active document into it.
void CmFileSaveAs(CommandContext& context);

// What a stereogram that is made from `source` may be called: beside the source's file,
// "shark-stereogram.png" for "shark.png".
QString ProposedStereogramFile(const Document& source);

}  // namespace plenovia
