#include <CLI/CLI.hpp>
#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "cli/commands.h"
#include "cli/options.h"
#include "cli/output.h"
#include "cli/pattern.h"
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
  std::string pattern = "0";
  std::string background;
  TSirdsSettings settings;
  RunOptions run;
  bool fit = false;
  ScanOptions scan;
  SourceOptions shape;
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
  const bool rangeGiven = FirstGiven({options.scan.zmin, options.scan.zmax}) != nullptr;
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

// The stereogram of the source, which is released before this returns.
Outcome<IndexedImage> MakeStereogram(const MakeOptions& options) {
  TerminalMonitor monitor(options.run.quiet);
  const auto source = OpenSource(options.source, options.shape, options.run.Threads(), monitor);
  if (!source) return tl::unexpected(source.error());
  const auto pattern = OpenPattern(options.pattern, options.run.Threads());
  if (!pattern) return tl::unexpected(pattern.error());
  IndexedImage background;
  if (!options.background.empty()) {
    auto picture = ReadPicture(options.background, options.run.Threads());
    if (!picture) return picture;
    background = std::move(*picture);
  }

  const auto settings = FittedSettings(*source, options);
  if (!settings) return tl::unexpected(settings.error());
  const RunInput input{*pattern, *settings, monitor, options.run.Threads()};
  Result<IndexedImage> result;
  if (const auto* picture = std::get_if<IndexedImage>(&*source)) {
    result = MakeSirdFromBitmap(*picture, 1.0, input);
  } else if (const auto* map = std::get_if<TDepthList>(&*source)) {
    result = MakeSirdFromDepthMap(*map, input);
  } else if (const auto* fine = std::get_if<FineImage>(&*source)) {
    result = MakeSirdFromFineImage(*fine, input);
  } else {
    const std::int32_t code = std::get<Figure>(*source).Code();
    result = MakeSirdFromFigure({_GetFigureLevel, code, &background, {}}, input);
  }
  if (!result) return Failed(options.out, result.error());
  return std::move(*result);
}

Outcome<void> Make(const MakeOptions& options) {
  if (auto checked = CheckOptions(options); !checked) return checked;
  const auto stereogram = MakeStereogram(options);
  if (!stereogram) return tl::unexpected(stereogram.error());
  return WriteOutput(options.out, *stereogram, options.run.Threads());
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
                       {SourceForm::kFigure});
  AddRunOptions(*command, options->run);
  command->footer(
      "The stereogram has the size of its source. Look at it with the eyes parallel, as at\n"
      "something far behind it, until its two markers become three.\n\n"
      "Example: sirds make scene.png -o scene-3d.png --depth-by brightness --zmax 255");
  command->callback([&task, options] { task = [options] { return Make(*options); }; });
}

}  // namespace plenovia
