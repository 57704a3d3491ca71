// Making a stereogram anew.
#pragma once

#include "engine/recipe.h"
#include "engine/ui/sird_run.h"
#include "sources/formula.h"

namespace plenovia {

struct CommandContext;

// What draws a formula's depth in the size that the settings name, and what a recipe tells of it.
FineDrawing DrawingOf(const Formula& formula);
RecipeSource RecipeSourceOf(const Formula& formula);

// Makes the active stereogram anew from its source, in its window, with the settings and the
// pattern of now. The source is looked for where it was, among the open windows, beside the
// stereogram's file, among the recent files; then the user is asked.
void CmMakeAgain(CommandContext& context);

}  // namespace plenovia
