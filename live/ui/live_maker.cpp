#include "live/ui/live_maker.h"

#include <QCoreApplication>
#include <algorithm>
#include <cmath>
#include <limits>
#include <new>
#include <tuple>
#include <utility>

#include "engine/reveal.h"
#include "engine/ui/sird_run.h"
#include "figures/sirdmath.h"
#include "platform/ui/text.h"
#include "viewing/depth_picture.h"
#include "viewing/found_again.h"
#include "viewing/separation_table.h"
#include "viewing/stereo_pair.h"

namespace plenovia {

namespace {

constexpr FieldSize kNoRoomLimit{std::numeric_limits<int>::max(), std::numeric_limits<int>::max()};
constexpr FieldSize kReliefRoom{512, 512};
constexpr FieldSize kMeterRoom{480, 360};
constexpr FieldSize kCountRoom{256, 256};
constexpr int kSteepRows = 128;
// Above so many pixels a smaller picture comes first, and above the last one no larger one follows.
constexpr std::int64_t kQuickStereogram = std::int64_t{1} << 22;
constexpr std::int64_t kQuickFound = std::int64_t{1} << 18;
constexpr std::int64_t kLargest = std::int64_t{1} << 26;

std::int64_t PixelsOf(FieldSize size) {
  return std::int64_t{size.width} * size.height;
}

// Levels with the object that they are read from.
struct Depth {
  std::shared_ptr<const void> keeps;
  std::shared_ptr<const DepthSource> source;
  FieldSize size;
};

Depth DepthOfPicture(const std::shared_ptr<const IndexedImage>& picture, double zoom, int start,
                     std::int32_t depthSel) {
  return {picture,
          std::make_shared<PictureDepth>(*picture, zoom, start, depthSel),
          {static_cast<int>(picture->width() * zoom), static_cast<int>(picture->height() * zoom)}};
}

Depth DepthOfLevels(const std::shared_ptr<const LevelGrid>& levels, int start) {
  return {levels,
          std::make_shared<MapDepth>(*levels, start),
          {levels->GridWidth(), levels->GridHeight()}};
}

// The source as it is to be looked at: nothing of it is moved for a scan method.
Depth PlainDepth(const LiveSource& source, const TSirdsSettings& settings) {
  if (source.picture) return DepthOfPicture(source.picture, source.zoom, 0, settings.depthSel);
  if (source.levels) return DepthOfLevels(source.levels, 0);
  TSirdsSettings upright = settings;
  upright.gapValue = 0;
  return {nullptr,
          std::make_shared<FigureDepth>(&_GetFigureLevel, source.figure, settings.w, settings.h,
                                        upright),
          {settings.w, settings.h}};
}

std::shared_ptr<const IndexedImage> Sampled(const IndexedImage& picture, FieldSize size) {
  auto made = IndexedImage::Create(size.width, size.height, picture.palette());
  if (!made) return nullptr;
  for (int y = 0; y < size.height; ++y) {
    const auto from = picture.Row(
        static_cast<int>((2 * std::int64_t{y} + 1) * picture.height() / (2 * size.height)));
    const auto to = made->Row(y);
    for (std::size_t x = 0; x < to.size(); ++x) {
      to[x] = from[(2 * x + 1) * from.size() / (2 * to.size())];
    }
  }
  return std::make_shared<const IndexedImage>(std::move(*made));
}

LivePicture Problem(LiveView view, const Error& error) {
  LivePicture picture;
  picture.view = view;
  picture.problem = ToSentence(error.message);
  return picture;
}

}  // namespace

// A stereogram to make, and what is known of its rows.
struct LiveMaker::Scene {
  SirdRun run;
  Depth rows;           // the levels of the rows as they are shifted
  TSirdsSettings used;  // with the range and the gap of the run
  int rowWidth = 0;     // pixels that are shifted
  bool isWhole = true;  // in the source's own size

  SeparationTable Separations() const { return {used, rows.source->kind(), rowWidth}; }
};

struct LiveMaker::KeptFigure {
  using Key = std::tuple<std::int32_t, std::int32_t, std::int32_t, std::int32_t, std::int32_t,
                         std::int32_t, std::int32_t, bool>;
  Key key;
  std::shared_ptr<const LevelField> rows;
};

struct LiveMaker::KeptHistogram {
  LiveSource source;
  TSirdsSettings settings;  // of those that count
  std::shared_ptr<const LevelHistogram> histogram;
};

struct LiveMaker::KeptPattern {
  std::shared_ptr<const IndexedImage> tile;
  std::int32_t gap = 0;
  PatternReading reading;
};

LiveMaker::LiveMaker() = default;
LiveMaker::~LiveMaker() = default;

std::shared_ptr<const LevelField> LiveMaker::FigureRows(const LiveRequest& request) {
  const TSirdsSettings& s = request.settings;
  const KeptFigure::Key key{request.source.figure,
                            s.dx,
                            s.dy,
                            s.da,
                            s.w,
                            s.h,
                            s.gapValue,
                            ScanMethodOf(s.scanMethod).anchor == RevealAnchor::kCentre};
  if (!figure_ || figure_->key != key) {
    const FigureDepth depth(&_GetFigureLevel, request.source.figure, s.w, s.h, s);
    figure_ = std::make_unique<KeptFigure>(KeptFigure{
        key, std::make_shared<const LevelField>(ReadLevels(depth, {s.w, s.h}, {s.w, s.h}))});
  }
  return figure_->rows;
}

// In the source's own size or, where that is larger than the room, in that of the room, with the
// depth sampled and the same gap.
LiveMaker::Scene LiveMaker::Prepare(const LiveRequest& request, FieldSize room) {
  const LiveSource& source = request.source;
  const ScanMethod& method = ScanMethodOf(request.settings.scanMethod);
  Scene scene;
  scene.used = request.settings;
  const Depth plain = PlainDepth(source, request.settings);
  const FieldSize size = FitInto(plain.size, room);
  scene.isWhole = size == plain.size || plain.size.width < 1 || plain.size.height < 1;
  LiveSource sampled = source;
  if (!scene.isWhole && source.picture) {
    sampled = {.picture = Sampled(*source.picture, size)};
    if (!sampled.picture) throw std::bad_alloc();
  } else if (!scene.isWhole) {
    sampled = {.levels =
                   std::make_shared<const LevelField>(ReadLevels(*plain.source, plain.size, size))};
  }
  const auto gap = static_cast<std::int32_t>(request.settings.gapValue * sampled.zoom);
  const int start = method.StartColumn(gap);
  scene.used.gapValue = gap;
  if (sampled.picture) {
    scene.run = RunFromPicture(sampled.picture, sampled.zoom, request.pattern, request.settings);
    scene.rows = DepthOfPicture(sampled.picture, sampled.zoom, start, request.settings.depthSel);
    scene.rowWidth = method.RunWidth(scene.rows.size.width, gap);
  } else if (sampled.levels) {
    scene.run = RunFromMap(sampled.levels, request.pattern, request.settings);
    scene.rows = DepthOfLevels(sampled.levels, start);
    scene.rowWidth = method.RunWidth(scene.rows.size.width, gap);
  } else {
    const auto levels = FigureRows(request);
    scene.run = RunFromFigure(source.figure, nullptr, source.title, request.pattern,
                              request.settings, levels);
    scene.rows = DepthOfLevels(levels, 0);
    scene.rowWidth = scene.rows.size.width;
  }
  scene.used.zmin = scene.run.range.zmin;
  scene.used.zmax = scene.run.range.zmax;
  return scene;
}

void LiveMaker::MakeStereogram(const LiveRequest& request, FieldSize room, RunMonitor& monitor,
                               const Show& show, bool isWhole) {
  const Scene scene = Prepare(request, room);
  auto made = scene.run.Make(monitor);
  if (!made) {
    if (made.error().code != ErrorCode::kCancelled) show(Problem(request.view, made.error()));
    return;
  }
  LivePicture picture;
  picture.view = request.view;
  picture.stereogram = std::make_shared<const IndexedImage>(std::move(*made));
  picture.range = scene.run.range;
  picture.isWhole = isWhole;
  show(std::move(picture));
}

void LiveMaker::MakeFound(const LiveRequest& request, FieldSize room, RunMonitor& monitor,
                          const Show& show, bool isWhole) {
  const Scene scene = Prepare(request, room);
  auto made = scene.run.Make(monitor);
  const auto separations = scene.Separations();
  RevealOptions options;
  options.anchor = ScanMethodOf(scene.used.scanMethod).anchor;
  const auto searched = SeparationsToSearch(*Histogram(request), separations);
  options.smallest = searched.smallest;
  options.largest = searched.largest;
  auto revealed = made.and_then(
      [&](const IndexedImage& stereogram) { return Reveal(stereogram, options, monitor); });
  if (!revealed) {
    if (revealed.error().code != ErrorCode::kCancelled) {
      show(Problem(request.view, revealed.error()));
    }
    return;
  }
  const LevelField truth = ReadLevels(*scene.rows.source, scene.rows.size, scene.rows.size);
  FoundAgain found = CompareFound(*revealed, truth, separations, options.anchor);
  LivePicture picture;
  picture.view = request.view;
  picture.found = found.Share();
  picture.colours = std::move(found.picture);
  picture.range = scene.run.range;
  picture.isWhole = isWhole;
  show(std::move(picture));
}

// The views that show the scene and not its stereogram. They are as large as the pane.
LivePicture LiveMaker::MakeColours(const LiveRequest& request) {
  const FieldSize pane{request.pane.width(), request.pane.height()};
  const Depth depth = PlainDepth(request.source, request.settings);
  TSirdsSettings used = request.settings;
  used.gapValue = static_cast<std::int32_t>(used.gapValue * request.source.zoom);
  LivePicture picture;
  picture.view = request.view;
  picture.range = {.zmin = used.zmin, .zmax = used.zmax};
  const LevelRange levels =
      request.source.figure != 0 ? kFigureLevels : LevelsOf(*Histogram(request));
  if (used.fitRange != 0) picture.range = FitDepthRange(levels, depth.source->kind(), used);
  used.zmin = picture.range.zmin;
  used.zmax = picture.range.zmax;
  const LevelRange range{std::min(used.zmin, used.zmax), std::max(used.zmin, used.zmax)};
  if (request.view == LiveView::kRelief) {
    const LevelField field =
        ReadLevels(*depth.source, depth.size, FitInto(depth.size, kReliefRoom));
    const LevelRange seen{std::max(range.lowest, std::min(levels.lowest, range.highest)),
                          std::max(range.lowest + 1, std::min(levels.highest, range.highest))};
    picture.colours = Relief(field, seen, request.relief, pane.width, pane.height);
    return picture;
  }
  const LevelField field = ReadLevels(*depth.source, depth.size, FitInto(depth.size, pane));
  if (request.view == LiveView::kDepth) {
    picture.colours = DepthPicture(field, range);
    return picture;
  }
  const ScanMethod& method = ScanMethodOf(used.scanMethod);
  const SeparationTable separations(used, depth.source->kind(),
                                    method.RunWidth(depth.size.width, used.gapValue));
  StereoPair pair = CoverWithPattern(field, *request.pattern, separations);
  if (request.view == LiveView::kAnaglyph) {
    picture.colours = Anaglyph(pair);
  } else {
    picture.colours = std::move(pair.left);
    picture.second = std::move(pair.right);
  }
  return picture;
}

void LiveMaker::Make(const LiveRequest& request, RunMonitor& monitor, const Show& show) {
  if (request.source.IsNone() || !request.pattern || request.pattern->empty()) return;
  try {
    if (request.view != LiveView::kStereogram && request.view != LiveView::kFound) {
      show(MakeColours(request));
      return;
    }
    const bool dots = request.view == LiveView::kStereogram;
    const auto make = dots ? &LiveMaker::MakeStereogram : &LiveMaker::MakeFound;
    const FieldSize pane{request.pane.width(), request.pane.height()};
    const FieldSize whole = PlainDepth(request.source, request.settings).size;
    const bool fit = request.fit || PixelsOf(whole) > kLargest;
    const FieldSize wanted = fit ? FitInto(whole, pane) : whole;
    const std::int64_t quick = dots ? kQuickStereogram : kQuickFound;
    if (PixelsOf(wanted) > quick) {
      (this->*make)(request, dots ? pane : kMeterRoom, monitor, show, false);
      if (monitor.StopRequested()) return;
    }
    (this->*make)(request, fit ? pane : kNoRoomLimit, monitor, show, true);
  } catch (const std::bad_alloc&) {
    show(Problem(request.view, {ErrorCode::kTooLarge,
                                QCoreApplication::translate("LiveView",
                                                            "There is not enough memory to show "
                                                            "this.")
                                    .toStdString()}));
  }
}

std::shared_ptr<const LevelHistogram> LiveMaker::Histogram(const LiveRequest& request) {
  const LiveSource& source = request.source;
  TSirdsSettings counts;
  counts.depthSel = source.picture ? request.settings.depthSel : counts.depthSel;
  if (source.figure != 0) {
    std::tie(counts.dx, counts.dy, counts.da, counts.w, counts.h) =
        std::tie(request.settings.dx, request.settings.dy, request.settings.da, request.settings.w,
                 request.settings.h);
  }
  if (histogram_ && histogram_->source == source && histogram_->settings == counts) {
    return histogram_->histogram;
  }
  LevelHistogram histogram;
  if (source.figure != 0) {
    const Depth depth = PlainDepth(source, request.settings);
    const FieldSize size = FitInto(depth.size, kCountRoom);
    const LevelField field = ReadLevels(*depth.source, depth.size, size);
    histogram = CountLevels(MapDepth(field, 0), size);
  } else {
    LiveSource unzoomed = source;
    unzoomed.zoom = 1;
    const Depth depth = PlainDepth(unzoomed, request.settings);
    histogram = CountLevels(*depth.source, depth.size);
  }
  histogram_ = std::make_unique<KeptHistogram>(
      KeptHistogram{source, counts, std::make_shared<const LevelHistogram>(std::move(histogram))});
  return histogram_->histogram;
}

std::optional<LiveMeter> LiveMaker::Measure(const LiveRequest& request, RunMonitor& monitor) {
  if (request.source.IsNone() || !request.pattern) return std::nullopt;
  try {
    LiveMeter meter;
    const Scene scene = Prepare(request, kMeterRoom);
    TSirdsSettings used = scene.used;
    used.gapValue = static_cast<std::int32_t>(request.settings.gapValue * request.source.zoom);
    const Depth depth = PlainDepth(request.source, request.settings);
    const SeparationTable separations(
        used, depth.source->kind(),
        ScanMethodOf(used.scanMethod).RunWidth(depth.size.width, used.gapValue));
    const auto histogram = Histogram(request);
    meter.repeats = ReadRepeats(*histogram, separations, request.millimetresPerPixel);
    meter.steps = ReadSteps(*histogram, separations);
    meter.steep =
        ReadSteepness(ReadLevels(*depth.source, depth.size,
                                 {depth.size.width, std::min(depth.size.height, kSteepRows)}),
                      separations);
    if (!pattern_ || pattern_->tile != request.pattern || pattern_->gap != used.gapValue) {
      pattern_ = std::make_unique<KeptPattern>(KeptPattern{
          request.pattern, used.gapValue, ReadPattern(*request.pattern, used.gapValue)});
    }
    meter.pattern = pattern_->reading;
    LiveRequest found = request;
    found.view = LiveView::kFound;
    MakeFound(
        found, kMeterRoom, monitor,
        [&meter](const LivePicture& picture) { meter.found = picture.found; }, true);
    if (monitor.StopRequested()) return std::nullopt;
    return meter;
  } catch (const std::bad_alloc&) {
    return std::nullopt;
  }
}

}  // namespace plenovia
