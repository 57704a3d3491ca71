#include <CLI/CLI.hpp>
#include <algorithm>
#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "cli/commands.h"
#include "cli/options.h"
#include "cli/output.h"
#include "cli/source.h"
#include "cli/source_options.h"
#include "cli/terminal_monitor.h"
#include "engine/bands.h"
#include "engine/depth_source.h"
#include "figures/sirdmath.h"

namespace plenovia {

namespace {

struct DepthOptions {
  std::string source;
  std::string out;
  TSirdsSettings settings;
  RunOptions run;
  SourceOptions shape;
  bool fine = false;
};

// The source in its own geometry: without the displacements that the scan methods need.
std::unique_ptr<DepthSource> MakeDepthSource(const Source& source, int width, int height,
                                             TSirdsSettings settings) {
  if (const auto* picture = std::get_if<IndexedImage>(&source)) {
    return std::make_unique<PictureDepth>(*picture, 1.0, 0, settings.depthSel);
  }
  if (const auto* map = std::get_if<TDepthList>(&source)) {
    return std::make_unique<MapDepth>(*map, 0);
  }
  if (const auto* fine = std::get_if<FineImage>(&source)) {
    return std::make_unique<FineDepth>(*fine, 0);
  }
  settings.gapValue = 0;
  const std::int32_t code = std::get<Figure>(source).Code();
  return std::make_unique<FigureDepth>(_GetFigureLevel, code, width, height, settings);
}

std::pair<int, int> SizeOf(const Source& source, const TSirdsSettings& settings) {
  if (const auto* picture = std::get_if<IndexedImage>(&source)) {
    return {picture->width(), picture->height()};
  }
  if (const auto* map = std::get_if<TDepthList>(&source)) {
    return {map->GridWidth(), map->GridHeight()};
  }
  if (const auto* fine = std::get_if<FineImage>(&source)) return {fine->width(), fine->height()};
  return {settings.w, settings.h};
}

// Fills the rows of a picture with the levels of a source, in parts of a level.
template <class Picture, class ToPixel>
Result<Picture> DepthPicture(Result<Picture> picture, const DepthSource& depth,
                             const RunOptions& run, RunMonitor& monitor, const ToPixel& toPixel) {
  if (!picture) return picture;
  const int width = picture->width();
  const int height = picture->height();
  const auto makeWorker = [&]() -> RowWorker {
    auto levels = std::make_shared<std::vector<std::int32_t>>(static_cast<std::size_t>(width));
    return [&, levels](int scanLine) {
      depth.BuildRow(scanLine, *levels);
      std::ranges::transform(*levels, picture->Row(height - 1 - scanLine).begin(), toPixel);
    };
  };
  const bool finished = RunBands(width, height, run.Threads(), makeWorker, monitor);
  monitor.OnProgress(ProgressPhase::kEnd, {});
  if (!finished) return Failure(ErrorCode::kCancelled, "The run was stopped.");
  return picture;
}

Outcome<void> WriteDepth(const Source& source, const DepthOptions& options, RunMonitor& monitor) {
  const auto [width, height] = SizeOf(source, options.settings);
  const auto depth = MakeDepthSource(source, width, height, options.settings);
  const int parts = depth->LevelParts();
  if (options.fine) {
    const int steps = FineDepth::kLevelParts / parts;
    const auto picture = DepthPicture(
        FineImage::Create(width, height), *depth, options.run, monitor,
        [steps](std::int32_t level) {
          const std::int64_t step = std::int64_t{level} * steps;
          return static_cast<std::uint16_t>(std::clamp<std::int64_t>(step, 0, FineImage::kHighest));
        });
    if (!picture) return Failed(options.source, picture.error());
    return WriteFineOutput(options.out, *picture);
  }
  const auto picture =
      DepthPicture(IndexedImage::Create(width, height, Palette::Grays()), *depth, options.run,
                   monitor, [parts](std::int32_t level) {
                     return static_cast<std::uint8_t>(std::clamp(level / parts, 0, 255));
                   });
  if (!picture) return Failed(options.source, picture.error());
  return WriteOutput(options.out, *picture, options.run.Threads());
}

Outcome<void> Depth(const DepthOptions& options) {
  if (options.fine) {
    if (auto checked = CheckFineOutput(options.out); !checked) return checked;
  }
  TerminalMonitor monitor(options.run.quiet);
  const auto source = OpenSource(options.source, options.shape, options.run.Threads(), monitor);
  if (!source) return tl::unexpected(source.error());
  return WriteDepth(*source, options, monitor);
}

}  // namespace

void AddDepthCommand(CLI::App& program, Task& task) {
  CLI::App* command = program.add_subcommand("depth", "Show the depth of a source in gray");
  auto options = std::make_shared<DepthOptions>();
  AddOperand(*command, "SOURCE", options->source, SourceHelp());
  AddOutput(*command, options->out, OutputKind::kGray);
  AddFine(*command, options->fine);
  AddDepthBy(*command, options->settings);
  options->shape.AddTo(*command, options->settings);
  AddRunOptions(*command, options->run);
  command->footer(
      "The gray of a pixel is its depth level: 0 is black and far, 255 white and near; levels\n"
      "beyond are cut off. Figures span a few levels only, so their pictures are dark.\n\n"
      "Example: sirds depth figure:3 -o figure.png --width 800 --height 600");
  command->callback([&task, options] { task = [options] { return Depth(*options); }; });
}

}  // namespace plenovia
