// Making stereograms, and what they are made with.
#pragma once

#include "platform/result.h"

namespace plenovia {

struct CommandContext;

// The stereogram of the active picture or depth map, in a new window.
void CmMakeSirds(CommandContext& context);
// The stereogram of a mathematical figure in a new window; `command` is 301 + its number.
void CmFigure(CommandContext& context, int command);
// Asks for a formula and makes its stereogram in a new window.
void CmFormula(CommandContext& context);
void CmWizard(CommandContext& context);
void CmSettings(CommandContext& context);
void CmPatterns(CommandContext& context);
// Adds the corner of the active picture to the pattern library.
[[nodiscard]] Result<void> AddPatternFromPicture(CommandContext& context);

}  // namespace plenovia
