// The recipe that a stereogram's file carries, as the command line tells and takes it.
#pragma once

#include <string>

#include "cli/outcome.h"
#include "cli/pattern.h"
#include "engine/recipe.h"

namespace plenovia {

// The recipe in a file; fails when it has none or a damaged one.
[[nodiscard]] Outcome<Recipe> OpenRecipe(const std::string& file, int threads);

// Some lines that tell it; the last one has the options of `sirds make` that it stands for.
std::string RecipeLines(const Recipe& recipe);

// The tile of a recipe: the pattern of the library with that name or, failing that, any other one
// with the same picture; else the file of that name beside `file`.
[[nodiscard]] Outcome<Tile> OpenRecipePattern(const Recipe& recipe, const std::string& file);

}  // namespace plenovia
