#include <CLI/CLI.hpp>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "cli/commands.h"
#include "cli/options.h"
#include "cli/output.h"
#include "cli/pattern.h"
#include "cli/recipe.h"
#include "cli/source.h"
#include "cli/source_options.h"
#include "cli/terminal_monitor.h"
#include "engine/fit_depth_range.h"
#include "engine/generation.h"
#include "figures/sirdmath.h"

namespace plenovia {

namespace {

struct MakeOptions {
  std::string source;
  std::string out;
  std::string pattern;  // empty: that of `like`, or the first one
  std::string background;
  TSirdsSettings settings;
  RunOptions run;
  bool fit = false;
  ScanOptions scan;
  SourceOptions shape;
  std::string like;       // a stereogram that the parameters are taken from
  bool noRecipe = false;  // the result carries none
};

Outcome<void> CheckOptions(const MakeOptions& options) {
  if (auto range = CheckDepthRange(options.settings); !range) return range;
  if (const CLI::Option* given = options.shape.GivenSize();
      given != nullptr && !options.background.empty()) {
    return WrongUsage("the background gives the size; leave out " + given->get_name());
  }
  return {};
}

// The levels of a source, and what kind of levels they are.
std::pair<LevelRange, SourceKind> LevelsIn(const Source& source, std::int32_t depthSel) {
  if (const auto* picture = std::get_if<IndexedImage>(&source)) {
    return {LevelsOf(*picture, depthSel), SourceKind::kImage};
  }
  if (const auto* map = std::get_if<TDepthList>(&source)) {
    return {LevelsOf(*map), SourceKind::kShape};
  }
  if (const auto* fine = std::get_if<FineImage>(&source)) {
    return {LevelsOf(*fine), SourceKind::kImage};
  }
  return {kFigureLevels, SourceKind::kShape};
}

// The settings with a depth range that shows the source. With --fit it prints the range as options.
// Fine levels have no range that they are made for, so they are fitted where none is given.
Outcome<TSirdsSettings> FittedSettings(const Source& source, const MakeOptions& options) {
  TSirdsSettings settings = options.settings;
  const bool rangeGiven =
      FirstGiven({options.scan.zmin, options.scan.zmax}) != nullptr || !options.like.empty();
  const bool fine = std::holds_alternative<FineImage>(source);
  if (!options.fit && (rangeGiven || !fine)) return settings;
  const auto [levels, kind] = LevelsIn(source, settings.depthSel);
  const FittedRange range = FitDepthRange(levels, kind, settings);
  settings.zmin = range.zmin;
  settings.zmax = range.zmax;
  if (!options.fit) return settings;
  return Print("--zmin " + std::to_string(range.zmin) + " --zmax " + std::to_string(range.zmax) +
               "\n")
      .map([&] { return settings; });
}

Outcome<Tile> OpenTile(const MakeOptions& options, const std::optional<Recipe>& like) {
  if (like && options.pattern.empty()) return OpenRecipePattern(*like, options.like);
  return OpenPattern(options.pattern.empty() ? "0" : options.pattern, options.run.Threads());
}

struct Stereogram {
  IndexedImage picture;
  Recipe recipe;
};

// The stereogram of the source, which is released before this returns.
Outcome<Stereogram> MakeStereogram(const MakeOptions& options, const std::optional<Recipe>& like) {
  TerminalMonitor monitor(options.run.quiet);
  const auto source = OpenSource(options.source, options.shape, options.run.Threads(), monitor);
  if (!source) return tl::unexpected(source.error());
  const auto tile = OpenTile(options, like);
  if (!tile) return tl::unexpected(tile.error());
  IndexedImage background;
  if (!options.background.empty()) {
    auto picture = ReadPicture(options.background, options.run.Threads());
    if (!picture) return tl::unexpected(picture.error());
    background = std::move(*picture);
  }

  const auto settings = FittedSettings(*source, options);
  if (!settings) return tl::unexpected(settings.error());
  const std::int32_t zoom = like ? like->source.zoom : 100;
  const RunInput input{tile->picture, *settings, monitor, options.run.Threads()};
  Result<IndexedImage> result;
  if (const auto* picture = std::get_if<IndexedImage>(&*source)) {
    result = MakeSirdFromBitmap(*picture, zoom / 100.0, input);
  } else if (const auto* map = std::get_if<TDepthList>(&*source)) {
    result = MakeSirdFromDepthMap(*map, input);
  } else if (const auto* fine = std::get_if<FineImage>(&*source)) {
    result = MakeSirdFromFineImage(*fine, input);
  } else {
    const std::int32_t code = std::get<Figure>(*source).Code();
    result = MakeSirdFromFigure({_GetFigureLevel, code, &background, {}}, input);
  }
  if (!result) return Failed(options.out, result.error());
  RecipeSource told = RecipeSourceOf(options.source, *source);
  told.background = options.background;
  told.zoom = zoom;
  told.shape = options.shape.Shape();
  return Stereogram{std::move(*result),
                    MakeRecipe(std::move(told), tile->file, tile->picture, *settings)};
}

// Takes the parameters of a recipe. What the command line gives is set again after that.
Outcome<void> TakeParameters(const Recipe& like, CLI::App& command, MakeOptions& options) {
  options.settings = like.settings;
  if (!options.shape.TakeShape(like.source.shape)) {
    return Failed(options.like, {ErrorCode::kCorrupt, "The recipe in the file is damaged."});
  }
  for (CLI::Option* option : command.get_options()) {
    if (option->count() > 0) option->run_callback();
  }
  return {};
}

Outcome<void> Make(CLI::App& command, MakeOptions& options) {
  std::optional<Recipe> like;
  if (!options.like.empty()) {
    auto recipe = OpenRecipe(options.like, options.run.Threads());
    if (!recipe) return tl::unexpected(recipe.error());
    like = std::move(*recipe);
    if (auto taken = TakeParameters(*like, command, options); !taken) return taken;
  }
  if (auto checked = CheckOptions(options); !checked) return checked;
  const auto made = MakeStereogram(options, like);
  if (!made) return tl::unexpected(made.error());
  return WriteOutput(options.out, made->picture, options.run.Threads(),
                     options.noRecipe ? "" : RecipeText(made->recipe));
}

}  // namespace

void AddMakeCommand(CLI::App& program, Task& task) {
  CLI::App* command = program.add_subcommand("make", "Make a stereogram");
  auto options = std::make_shared<MakeOptions>();
  AddOperand(*command, "SOURCE", options->source, SourceHelp());
  AddOutput(*command, options->out, OutputKind::kPicture);
  command
      ->add_option("--pattern", options->pattern,
                   "Background tile: a picture, or its number in the list\n"
                   "of 'sirds patterns' (default 0)")
      ->option_text("FILE|NUMBER");
  command
      ->add_option("--like", options->like,
                   "A stereogram whose recipe gives the pattern and the\n"
                   "parameters that no other option gives")
      ->option_text("FILE");
  options->scan = AddScanOptions(*command, options->settings);
  command->add_flag("--fit", options->fit,
                    "When the depth range does not show all levels of the\n"
                    "source, take one that does; prints the range used");
  AddDepthBy(*command, options->settings);
  AddMarkers(*command, options->settings);
  options->shape.AddTo(*command, options->settings);
  options->shape.Limit(command
                           ->add_option("--background", options->background,
                                        "Draw the figure into this picture instead of tiles;\n"
                                        "the result has its size and the pattern's colours")
                           ->option_text("PICTURE"),
                       {SourceForm::kFigure}, SourceOptions::Kind::kOther);
  command->add_flag("--no-recipe", options->noRecipe,
                    "Do not write into the file what made it (PNG, GIF and\n"
                    "JPEG files tell it; folders are never named)");
  AddRunOptions(*command, options->run);
  command->footer(
      "The stereogram has the size of its source. Look at it with the eyes parallel, as at\n"
      "something far behind it, until its two markers become three.\n\n"
      "Example: sirds make scene.png -o scene-3d.png --depth-by brightness --zmax 255");
  command->callback([&task, command, options] {
    task = [command, options] { return Make(*command, *options); };
  });
}

}  // namespace plenovia
