// Recipes: any text is refused or read; what was read is in its limits and comes back from its own
// text.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "engine/recipe.h"

namespace plenovia {
namespace {

void Require(bool condition) {
  if (!condition) std::abort();
}

void Try(std::string_view text) {
  const auto recipe = ReadRecipe(text);
  if (!recipe) return;
  const RecipeSource& source = recipe->source;
  Require(source.name.size() <= kLongestRecipeText && source.shape.size() <= kLongestRecipeText);
  const bool isFile = source.kind != RecipeKind::kFormula && source.kind != RecipeKind::kText;
  for (const std::string* name :
       {isFile ? &source.name : &source.background, &source.background, &recipe->pattern}) {
    Require(name->size() <= kLongestRecipeName && *name != "." && *name != "..");
    Require(name->find('/') == std::string::npos && name->find('\0') == std::string::npos);
  }
  for (const SettingKey& key : SettingKeys()) {
    const std::int32_t value = recipe->settings.*key.field;
    Require(value >= key.lowest && value <= key.highest);
  }
  const std::string again = RecipeText(*recipe);
  Require(again.size() <= kLongestRecipe);
  Require(ReadRecipe(again).value() == *recipe);
}

}  // namespace
}  // namespace plenovia

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  plenovia::Try({reinterpret_cast<const char*>(data), size});
  return 0;
}
