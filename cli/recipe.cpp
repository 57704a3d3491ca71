#include "cli/recipe.h"

#include <algorithm>
#include <filesystem>
#include <utility>
#include <vector>

#include "cli/options.h"
#include "cli/pattern.h"
#include "cli/source.h"
#include "codec/graph_io.h"
#include "engine/picture_digest.h"

namespace plenovia {

namespace {

std::string KindName(const RecipeSource& source) {
  switch (source.kind) {
    case RecipeKind::kFigure:
      return "figure";
    case RecipeKind::kFormula:
      return "formula";
    case RecipeKind::kText:
      return "text";
    case RecipeKind::kDepthMap:
      return "depth map";
    case RecipeKind::kPicture:
      break;
  }
  return source.zoom == 100 ? "picture" : "picture at " + std::to_string(source.zoom) + " %";
}

}  // namespace

Outcome<Recipe> OpenRecipe(const std::string& file, int threads) {
  const auto opened = OpenFile(file, threads);
  if (!opened) return tl::unexpected(opened.error());
  if (opened->comment.empty()) {
    return Failed(file, {ErrorCode::kInvalid, "The file has no recipe of a stereogram."});
  }
  auto recipe = ReadRecipe(opened->comment);
  if (!recipe) return Failed(file, recipe.error());
  return std::move(*recipe);
}

std::string RecipeLines(const Recipe& recipe) {
  const RecipeSource& source = recipe.source;
  std::string lines = "recipe: Plenovia " + recipe.program + '\n';
  lines += "source: " + Printable(source.name) + " (" + KindName(source) + ")\n";
  if (!source.background.empty()) lines += "background: " + Printable(source.background) + '\n';
  lines += "pattern: " + Printable(recipe.pattern) + '\n';
  return lines + "options: " + Printable(OptionsOf(recipe)) + '\n';
}

Outcome<Tile> OpenRecipePattern(const Recipe& recipe, const std::string& file) {
  std::vector<std::filesystem::path> files;
  if (const auto library = PatternLibrary()) {
    for (const PatternFile& each : *library) files.push_back(each.path);
  }
  files.push_back(std::filesystem::path(file).parent_path() / recipe.pattern);
  std::stable_partition(files.begin(), files.end(),
                        [&](const auto& path) { return path.filename() == recipe.pattern; });
  for (const auto& path : files) {
    auto tile = TGraphIO().Read_File(path);
    if (tile && PictureDigest(*tile) == recipe.patternDigest) return Tile{std::move(*tile), path};
  }
  return Failed(file, {ErrorCode::kInvalid, "Its pattern " + recipe.pattern +
                                                " is not here any more; name one with --pattern."});
}

}  // namespace plenovia
