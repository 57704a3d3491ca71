#include "engine/ui/sird_run.h"

#include <utility>

#include "engine/ui/figure_caption.h"
#include "figures/sirdmath.h"

namespace plenovia {

namespace {

FittedRange RangeAsSet(const TSirdsSettings& settings) {
  return {.zmin = settings.zmin, .zmax = settings.zmax};
}

TSirdsSettings UsedSettings(const SirdRun& run) {
  TSirdsSettings used = run.settings;
  used.zmin = run.range.zmin;
  used.zmax = run.range.zmax;
  return used;
}

}  // namespace

Result<IndexedImage> SirdRun::Make(RunMonitor& monitor) const {
  const TSirdsSettings used = UsedSettings(*this);
  return make({*pattern, used, monitor});
}

Recipe SirdRun::MadeBy() const {
  return MakeRecipe(source, patternFile, *pattern, UsedSettings(*this));
}

SirdRun SirdRun::WithRangeAsSet() const {
  SirdRun run = *this;
  run.range = RangeAsSet(settings);
  return run;
}

SirdRun RunFromPicture(std::shared_ptr<const IndexedImage> source, double zoom,
                       std::shared_ptr<const IndexedImage> pattern,
                       const TSirdsSettings& settings) {
  FittedRange range = RangeAsSet(settings);
  if (settings.fitRange != 0) {
    TSirdsSettings zoomed = settings;
    zoomed.gapValue = static_cast<std::int32_t>(settings.gapValue * zoom);
    range = FitDepthRange(LevelsOf(*source, settings.depthSel), SourceKind::kImage, zoomed);
  }
  return {[source = std::move(source), zoom](const RunInput& input) {
            return MakeSirdFromBitmap(*source, zoom, input);
          },
          std::move(pattern), settings, std::move(range)};
}

SirdRun RunFromMap(std::shared_ptr<const LevelGrid> map,
                   std::shared_ptr<const IndexedImage> pattern, const TSirdsSettings& settings) {
  FittedRange range = RangeAsSet(settings);
  if (settings.fitRange != 0) range = FitDepthRange(LevelsOf(*map), SourceKind::kShape, settings);
  return {
      [map = std::move(map)](const RunInput& input) { return MakeSirdFromDepthMap(*map, input); },
      std::move(pattern), settings, std::move(range)};
}

SirdRun RunFromFine(FineDrawing draw, std::shared_ptr<const IndexedImage> pattern,
                    const TSirdsSettings& settings) {
  constexpr LevelRange kLevels = {0, 255};
  FittedRange range = RangeAsSet(settings);
  if (settings.fitRange != 0) range = FitDepthRange(kLevels, SourceKind::kImage, settings);
  return {[draw = std::move(draw)](const RunInput& input) {
            return draw(input).and_then(
                [&](const FineImage& levels) { return MakeSirdFromFineImage(levels, input); });
          },
          std::move(pattern), settings, std::move(range)};
}

SirdRun RunFromFigure(std::int32_t code, std::shared_ptr<const IndexedImage> background,
                      const QString& title, std::shared_ptr<const IndexedImage> pattern,
                      const TSirdsSettings& settings, std::shared_ptr<const LevelGrid> known) {
  FittedRange range = RangeAsSet(settings);
  if (settings.fitRange != 0) range = FitDepthRange(kFigureLevels, SourceKind::kShape, settings);
  const auto make = [code, background = std::move(background), title,
                     known = std::move(known)](const RunInput& input) {
    FigureRun run;
    run.level = &_GetFigureLevel;
    run.code = code;
    run.known = known.get();
    run.background = background.get();
    run.caption = [&title](IndexedImage& picture) { DrawFigureCaption(picture, title); };
    return MakeSirdFromFigure(run, input);
  };
  return {make, std::move(pattern), settings, std::move(range)};
}

}  // namespace plenovia
