// The generation runs: from a depth source, a pattern and the parameters to a stereogram.
#pragma once

#include <cstdint>
#include <functional>

#include "engine/depth_source.h"
#include "engine/run_monitor.h"
#include "engine/sirds_settings.h"
#include "platform/fine_image.h"
#include "platform/indexed_image.h"
#include "platform/level_grid.h"
#include "platform/result.h"

namespace plenovia {

// What every run needs beside its depth source. All of it is borrowed and must outlive the run;
// the settings are read once, at the start.
struct RunInput {
  const IndexedImage& pattern;  // the tile; the result has its colours, widened to 256,
                                // with blends of them for a method that blends
  const TSirdsSettings& settings;
  RunMonitor& monitor;
  int threads =
      1;  // rows are shared out among as many threads; the result is the same for any number
};

// Each run gives the finished stereogram, or an error: kCancelled when the monitor stopped it,
// kInvalid or kTooLarge when the picture cannot be made (a side below 1, no memory, a negative gap,
// or a gap, dx or dy of more pixels than a picture's side can have). In every case the monitor
// hears the end phase last.

// Depth from a picture by palette index or by brightness. `zoom` scales the result with its gap and
// its markers; the source is read at the nearest pixel.
[[nodiscard]] Result<IndexedImage> MakeSirdFromBitmap(const IndexedImage& source, double zoom,
                                                      const RunInput& input);

// Depth from a picture of fine levels, in its size; step 257 of it is level 1 of the depth range. A
// method that moves whole pixels rounds what comes of them.
[[nodiscard]] Result<IndexedImage> MakeSirdFromFineImage(const FineImage& source,
                                                         const RunInput& input);

// Depth from a depth map, in the map's size.
[[nodiscard]] Result<IndexedImage> MakeSirdFromDepthMap(const LevelGrid& map,
                                                        const RunInput& input);

struct FigureRun {
  FigureLevelFunction level = nullptr;
  std::int32_t code = -1;
  // When given, the figure is shifted into this picture, mapped to the pattern's colours, and the
  // result has its size; otherwise into pattern tiles of the size that the settings name.
  const IndexedImage* background = nullptr;
  // Called on the finished picture before the markers are drawn, when given.
  std::function<void(IndexedImage&)> caption;
  // The levels of the rows as the run needs them, when they are known from a run that differed in
  // the pattern, the range or the markers only.
  const LevelGrid* known = nullptr;
};

// Depth from a mathematical figure.
[[nodiscard]] Result<IndexedImage> MakeSirdFromFigure(const FigureRun& figure,
                                                      const RunInput& input);

}  // namespace plenovia
