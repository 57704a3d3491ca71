// Recipes of any kind, for tests.
#pragma once

#include <algorithm>
#include <string>
#include <utility>

#include "engine/recipe.h"
#include "engine/scan_method.h"
#include "platform/random.h"

namespace plenovia {

// A name of any bytes that a file's name may have.
inline std::string RandomName(Random& random) {
  std::string name(
      static_cast<std::size_t>(random.Int(0, 1) == 0 ? random.Int(0, 12)
                                                     : static_cast<int>(kLongestRecipeName)),
      ' ');
  for (char& c : name) {
    c = static_cast<char>(random.Int(0, 3) == 0 ? random.Byte() : random.Int('a', 'z'));
    if (c == '/' || c == '\0' || c == '.') c = '%';
  }
  return name;
}

// Every field anywhere in its range.
inline Recipe RandomRecipe(Random& random) {
  Recipe recipe;
  recipe.source.kind = static_cast<RecipeKind>(random.Int(0, 3));
  recipe.source.name = RandomName(random);
  if (recipe.source.kind == RecipeKind::kFormula) recipe.source.name = "x/y%3";
  recipe.source.shape = "--reach " + RandomName(random);
  recipe.source.background = RandomName(random);
  recipe.source.zoom = random.Int(1, 1000);
  recipe.pattern = RandomName(random);
  recipe.patternDigest = random.Next();
  recipe.program = std::to_string(random.Int(0, 99)) + ".0-rc";
  TSirdsSettings& settings = recipe.settings;
  for (const SettingKey& key : SettingKeys()) {
    settings.*key.field = random.Int(key.lowest, key.highest);
  }
  settings.scanMethod = random.Int(1, static_cast<int>(ScanMethods().size()));
  if (settings.zmin > settings.zmax) std::swap(settings.zmin, settings.zmax);
  return recipe;
}

}  // namespace plenovia
