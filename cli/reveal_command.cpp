#include <CLI/CLI.hpp>
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <memory>
#include <numeric>
#include <string>
#include <utility>
#include <vector>

#include "cli/commands.h"
#include "cli/options.h"
#include "cli/output.h"
#include "cli/source.h"
#include "cli/terminal_monitor.h"
#include "codec/picture_format.h"
#include "engine/depth_source.h"
#include "engine/fine_reveal.h"
#include "engine/reveal.h"
#include "engine/separation.h"

namespace plenovia {

namespace {

constexpr int kCertain = 128;  // half way between a guess and beyond doubt

struct RevealCommandOptions {
  std::string picture;
  std::string out;
  TSirdsSettings settings;
  ScanOptions scan;
  RunOptions run;
  bool fine = false;
  bool Levels() const { return FirstGiven(scan.All()) != nullptr; }
};

// Gray by separation.
using Grays = std::vector<std::uint8_t>;

// The levels that the scan method needs for each separation.
Grays LevelGrays(const RevealedDepth& depth, const TSirdsSettings& settings) {
  Grays grays(static_cast<std::size_t>(depth.largest) + 1);
  for (int s = depth.smallest; s <= depth.largest; ++s) {
    grays[static_cast<std::size_t>(s)] = static_cast<std::uint8_t>(
        LevelFromSeparation(s, settings, SourceKind::kImage, depth.width));
  }
  return grays;
}

// The separations between which nearly all lie: a hundredth may lie beyond either end. `counts` has
// the number of pixels of each.
struct Extent {
  int low = 0;
  int high = 0;
  int Range() const { return std::max(1, high - low); }
  // How near a separation is, from 0 to 1.
  double Nearness(double separation) const {
    return std::clamp((high - separation) / Range(), 0.0, 1.0);
  }
};

Extent ExtentOf(const RevealedDepth& depth, const std::vector<std::size_t>& counts) {
  const auto spare = std::accumulate(counts.begin(), counts.end(), std::size_t{0}) / 100;
  Extent extent{depth.smallest, depth.largest};
  std::size_t below = 0;
  std::size_t above = 0;
  const auto count = [&](int separation) { return counts[static_cast<std::size_t>(separation)]; };
  while (extent.low < extent.high && (below += count(extent.low)) <= spare) ++extent.low;
  while (extent.high > extent.low && (above += count(extent.high)) <= spare) --extent.high;
  return extent;
}

// The separations that occur stretched over all grays, the smallest, which is the nearest, to
// white.
Grays StretchedGrays(const RevealedDepth& depth, const Extent& extent) {
  Grays grays(static_cast<std::size_t>(depth.largest) + 1);
  for (int s = 1; s <= depth.largest; ++s) {
    grays[static_cast<std::size_t>(s)] =
        static_cast<std::uint8_t>(std::clamp((extent.high - s) * 255 / extent.Range(), 0, 255));
  }
  return grays;
}

// The columns whose pairs lie inside the picture for all separations that were tried; what is found
// in the margins beside them is worth little.
struct Columns {
  std::size_t begin = 0;
  std::size_t end = 0;
};

Columns ColumnsInside(const RevealedDepth& depth, RevealAnchor anchor) {
  const bool centre = anchor == RevealAnchor::kCentre;
  const int begin = centre ? (depth.largest + 1) / 2 : depth.largest;
  const int end = centre ? depth.width - begin : depth.width;
  if (begin >= end) return {0, static_cast<std::size_t>(depth.width)};
  return {static_cast<std::size_t>(begin), static_cast<std::size_t>(end)};
}

// How many pixels inside have each separation, of those that are certain.
std::vector<std::size_t> CertainCounts(const RevealedDepth& depth, const Columns& inside) {
  std::vector<std::size_t> counts(static_cast<std::size_t>(depth.largest) + 1);
  const auto width = static_cast<std::size_t>(depth.width);
  for (std::size_t row = 0; row < depth.separation.size(); row += width) {
    for (std::size_t at = row + inside.begin; at < row + inside.end; ++at) {
      if (depth.certainty[at] >= kCertain) ++counts[depth.separation[at]];
    }
  }
  return counts;
}

// Black in the margins. Draws over the stereogram, as a large picture takes time and memory.
IndexedImage Draw(const RevealedDepth& depth, const Grays& grays, const Columns& inside,
                  IndexedImage picture) {
  picture.SetPalette(Palette::Grays());
  for (int y = 0; y < depth.height; ++y) {
    const auto row = picture.Row(y);
    const std::uint16_t* found = depth.separation.data() + row.size() * static_cast<std::size_t>(y);
    std::ranges::fill(row.first(inside.begin), std::uint8_t{0});
    for (std::size_t x = inside.begin; x < inside.end; ++x) row[x] = grays[found[x]];
    std::ranges::fill(row.subspan(inside.end), std::uint8_t{0});
  }
  return picture;
}

// The same with 16 bits, of separations to parts of a pixel.
Result<FineImage> DrawFine(const RevealedDepth& depth, const PixelVector<float>& separations,
                           const RevealCommandOptions& options, const Extent& extent,
                           const Columns& inside) {
  auto picture = FineImage::Create(depth.width, depth.height);
  if (!picture) return picture;
  const auto gray = [&](float separation) {
    if (!options.Levels()) return extent.Nearness(separation) * FineImage::kHighest;
    return FineDepth::kLevelParts *
           FineLevelFromSeparation(separation, options.settings, SourceKind::kImage, depth.width);
  };
  for (int y = 0; y < depth.height; ++y) {
    const auto row = picture->Row(y);
    const float* found = separations.data() + row.size() * static_cast<std::size_t>(y);
    std::ranges::fill(row, std::uint16_t{0});
    for (std::size_t x = inside.begin; x < inside.end; ++x) {
      if (found[x] > 0) row[x] = static_cast<std::uint16_t>(std::lround(gray(found[x])));
    }
  }
  return picture;
}

std::string CertainLine(double share) {
  std::array<char, 40> line{};
  std::snprintf(line.data(), line.size(), "certain: %.1f %%\n", 100.0 * share);
  return line.data();
}

Outcome<void> RevealDepth(const RevealCommandOptions& options) {
  if (auto range = CheckDepthRange(options.settings); !range) return range;
  if (options.fine) {
    if (auto checked = CheckFineOutput(options.out); !checked) return checked;
  }
  auto picture = ReadPicture(options.picture, options.run.Threads());
  if (!picture) return tl::unexpected(picture.error());
  TerminalMonitor monitor(options.run.quiet);
  RevealOptions search;
  search.anchor = ScanMethodOf(options.settings.scanMethod).anchor;
  search.threads = options.run.Threads();
  const auto depth = Reveal(*picture, search, monitor);
  if (!depth) return Failed(options.picture, depth.error());
  const Columns inside = ColumnsInside(*depth, search.anchor);
  const auto counts = CertainCounts(*depth, inside);
  const Extent extent = ExtentOf(*depth, counts);
  const auto pixels = (inside.end - inside.begin) * static_cast<std::size_t>(depth->height);
  const auto certain = std::accumulate(counts.begin(), counts.end(), std::size_t{0});
  const auto written = [&]() -> Outcome<void> {
    if (!options.fine) {
      const Grays grays =
          options.Levels() ? LevelGrays(*depth, options.settings) : StretchedGrays(*depth, extent);
      return WriteOutput(options.out, Draw(*depth, grays, inside, std::move(*picture)),
                         options.run.Threads());
    }
    const auto fine = FineSeparations(*picture, *depth, search.anchor, search.threads, monitor);
    monitor.OnProgress(ProgressPhase::kEnd, {});
    if (!fine) return Failed(options.picture, fine.error());
    const auto drawn = DrawFine(*depth, *fine, options, extent, inside);
    if (!drawn) return Failed(options.out, drawn.error());
    return WriteFineOutput(options.out, *drawn);
  }();
  return written.and_then([&] {
    return Print(CertainLine(static_cast<double>(certain) / static_cast<double>(pixels)));
  });
}

}  // namespace

void AddRevealCommand(CLI::App& program, Task& task) {
  CLI::App* command =
      program.add_subcommand("reveal", "Find the depth in a stereogram, ours or anyone's");
  auto options = std::make_shared<RevealCommandOptions>();
  AddOperand(*command, "PICTURE", options->picture, "A stereogram (" + ReadableNames() + ")");
  AddOutput(*command, options->out, OutputKind::kGray);
  AddFine(*command, options->fine);
  options->scan = AddScanOptions(*command, options->settings);
  AddRunOptions(*command, options->run);
  command->footer(
      "Prints how many of the pixels have a depth that is certain. The result is bright where\n"
      "the stereogram is near, with the depths that occur stretched over all grays. With --scan,\n"
      "--gap, --zmin or --zmax its grays are the levels of the picture that the stereogram was\n"
      "made of with these parameters, the others being at their defaults. Margins in which the\n"
      "pattern does not repeat yet have no depth: they are black and do not count. Repeats of\n"
      "up to 1024 pixels are found. With --fine separations are found to parts of a pixel.\n\n"
      "Example: sirds reveal scene-3d.png -o found.png");
  command->callback([&task, options] { task = [options] { return RevealDepth(*options); }; });
}

}  // namespace plenovia
