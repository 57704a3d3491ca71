// One stereogram to make: from what, with which pattern and which settings.
#pragma once

#include <QString>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>

#include "engine/fit_depth_range.h"
#include "engine/generation.h"
#include "engine/recipe.h"
#include "engine/sirds_settings.h"
#include "platform/fine_image.h"
#include "platform/indexed_image.h"
#include "platform/level_grid.h"
#include "platform/result.h"

namespace plenovia {

// Keeps what it is made from, so it can be made again.
struct SirdRun {
  std::function<Result<IndexedImage>(const RunInput&)> make;
  std::shared_ptr<const IndexedImage> pattern;
  TSirdsSettings settings;
  FittedRange range;          // in place of that of the settings
  RecipeSource source{};      // what the recipe tells of what it is made from,
  std::string patternFile{};  // and what the pattern's file is called

  [[nodiscard]] Result<IndexedImage> Make(RunMonitor& monitor) const;
  // Needs the pattern.
  Recipe MadeBy() const;
  // The same with the range of the settings.
  SirdRun WithRangeAsSet() const;
};

// The range is fitted where the source needs it and the settings do not forbid it. `pattern` may be
// null until Make().
SirdRun RunFromPicture(std::shared_ptr<const IndexedImage> source, double zoom,
                       std::shared_ptr<const IndexedImage> pattern, const TSirdsSettings& settings);
SirdRun RunFromMap(std::shared_ptr<const LevelGrid> map,
                   std::shared_ptr<const IndexedImage> pattern, const TSirdsSettings& settings);
// A picture of fine levels that the run draws first; its highest level is 255.
using FineDrawing = std::function<Result<FineImage>(const RunInput&)>;
SirdRun RunFromFine(FineDrawing draw, std::shared_ptr<const IndexedImage> pattern,
                    const TSirdsSettings& settings);
// `code` is -(number of the figure + 1), `background` may be null, `title` is the caption,
// `known` as FigureRun has it.
SirdRun RunFromFigure(std::int32_t code, std::shared_ptr<const IndexedImage> background,
                      const QString& title, std::shared_ptr<const IndexedImage> pattern,
                      const TSirdsSettings& settings,
                      std::shared_ptr<const LevelGrid> known = nullptr);

}  // namespace plenovia
