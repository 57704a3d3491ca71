#include "engine/generation.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <memory>
#include <new>
#include <optional>
#include <string>
#include <utility>

#include "engine/bands.h"
#include "engine/colour_blends.h"
#include "engine/markers.h"
#include "engine/prepared_shift.h"
#include "engine/scan_method.h"
#include "engine/tiling.h"
#include "platform/limits.h"

namespace plenovia {

namespace {

// The picture that is being generated.
struct Canvas {
  int runWidth = 0;    // columns generated
  int finalWidth = 0;  // columns kept, the leftmost ones
  int height = 0;
  std::int32_t gap = 0;                      // of the rows and between the markers
  const IndexedImage* background = nullptr;  // in the palette of the result; none: pattern tiles
};

// Fills and shifts the rows of one canvas, one at a time, with buffers of its own.
class RowShifter {
 public:
  RowShifter(const Canvas& canvas, const DepthSource& source, const RunInput& input,
             const PreparedShift& shift, IndexedImage& result)
      : canvas_(canvas),
        source_(source),
        pattern_(input.pattern),
        shift_(shift),
        result_(result),
        origin_(ScanMethodOf(input.settings.scanMethod)
                    .TileOrigin(canvas.runWidth, input.pattern.width())),
        row_(canvas.runWidth) {}

  void Run(int scanLine) {
    const auto row = row_.pixels();
    const int y = canvas_.height - 1 - scanLine;
    if (canvas_.background != nullptr) {
      std::copy_n(canvas_.background->Row(y).begin(), row.size(), row.begin());
    } else {
      TilePatternRow(row, pattern_, origin_, y);
    }
    if (source_.BuildByteRow(scanLine, row_.byteLevels())) {
      shift_.ShiftBytes(row_);
    } else {
      source_.BuildRow(scanLine, row_.levels());
      shift_.Shift(row_);
    }
    const auto kept = result_.Row(y);
    std::copy_n(row.begin(), kept.size(), kept.begin());
  }

 private:
  const Canvas& canvas_;
  const DepthSource& source_;
  const IndexedImage& pattern_;
  const PreparedShift& shift_;
  IndexedImage& result_;
  int origin_;
  ShiftBuffers row_;
};

// Generates the canvas. The result's pixels are complete but for caption and markers.
Result<IndexedImage> ShiftRows(const Canvas& canvas, const DepthSource& source,
                               const RunInput& input) {
  const ScanMethod& method = ScanMethodOf(input.settings.scanMethod);
  std::optional<ColourBlends> blends;
  if (method.blends) blends.emplace(canvas.background ? *canvas.background : input.pattern);
  auto result =
      IndexedImage::Create(canvas.finalWidth, canvas.height,
                           blends ? blends->palette() : input.pattern.palette().Widened());
  if (!result) return result;
  ScanSetup setup(canvas.runWidth, canvas.gap, source.kind(), input.settings,
                  blends ? &*blends : nullptr);
  setup.zmin *= source.LevelParts();
  setup.range *= source.LevelParts();
  const auto shift = method.prepare(setup);
  const bool finished = RunBands(
      canvas.runWidth, canvas.height, input.threads,
      [&]() -> RowWorker {
        auto rows = std::make_shared<RowShifter>(canvas, source, input, *shift, *result);
        return [rows](int scanLine) { rows->Run(scanLine); };
      },
      input.monitor);
  if (!finished) return Failure(ErrorCode::kCancelled, "The run was stopped.");
  return result;
}

// Brackets a run: the first messages when it is made, the last one when it goes.
class Bracket {
 public:
  Bracket(RunMonitor& monitor, std::string startText) : monitor_(monitor) {
    monitor_.OnProgress(ProgressPhase::kStart, {std::move(startText), 0, 0});
    monitor_.OnProgress(ProgressPhase::kFirstStep, {"Generating Dots", 0, 100});
  }
  Bracket(const Bracket&) = delete;
  Bracket& operator=(const Bracket&) = delete;
  ~Bracket() { monitor_.OnProgress(ProgressPhase::kEnd, {}); }

 private:
  RunMonitor& monitor_;
};

// A gap and a place for which sums with coordinates fit an int, and rows are no narrower than the
// result.
Result<void> CheckInput(const RunInput& input) {
  if (input.pattern.empty()) return Failure(ErrorCode::kInvalid, "There is no pattern to use.");
  const auto fits = [](std::int32_t pixels, std::int32_t least) {
    return pixels >= least && pixels <= kMaxSide;
  };
  const TSirdsSettings& settings = input.settings;
  if (!fits(settings.gapValue, 0) || !fits(settings.dx, -kMaxSide) ||
      !fits(settings.dy, -kMaxSide)) {
    return Failure(ErrorCode::kInvalid,
                   "The gap has to be from 0 to 32767 pixels, the place of the figure at most "
                   "32767 pixels from the middle.");
  }
  return {};
}

// What all runs do alike around their own work.
template <class Work>
Result<IndexedImage> Run(const RunInput& input, std::string startText, const Work& work) {
  const Bracket bracket(input.monitor, std::move(startText));
  if (auto usable = CheckInput(input); !usable) return tl::unexpected(usable.error());
  try {
    return work();
  } catch (const std::bad_alloc&) {
    return Failure(ErrorCode::kTooLarge, "There is not enough memory for the stereogram.");
  }
}

// Generates the canvas and finishes it. `caption` may be empty.
Result<IndexedImage> Generate(const Canvas& canvas, const DepthSource& source,
                              const RunInput& input,
                              const std::function<void(IndexedImage&)>& caption = {}) {
  auto result = ShiftRows(canvas, source, input);
  if (!result) return result;
  if (caption) caption(*result);
  if (input.settings.marker != 0) {
    DrawMarkers(*result, canvas.gap,
                input.settings.bigMarker != 0 ? MarkerSize::kLarge : MarkerSize::kSmall);
  }
  return result;
}

// `picture` with each pixel at the palette's nearest colour.
Result<IndexedImage> MapToPalette(const IndexedImage& picture, const Palette& palette) {
  auto mapped = IndexedImage::Create(picture.width(), picture.height(), palette);
  if (!mapped) return mapped;
  std::array<std::uint8_t, 256> nearest{};
  for (int i = 0; i < 256; ++i) {
    nearest[static_cast<std::size_t>(i)] = palette.Nearest(picture.palette()[i]);
  }
  std::transform(picture.pixels().begin(), picture.pixels().end(), mapped->pixels().begin(),
                 [&](std::uint8_t index) { return nearest[index]; });
  return mapped;
}

Result<IndexedImage> FromBitmap(const IndexedImage& source, double zoom, const RunInput& input) {
  const TSirdsSettings& settings = input.settings;
  const double scaledWidth = std::trunc(source.width() * zoom);
  const double scaledHeight = std::trunc(source.height() * zoom);
  const double gap = settings.gapValue * zoom;
  if (!(zoom > 0)) return Failure(ErrorCode::kInvalid, "The zoom has to be above 0.");
  if (!(scaledWidth + gap < 1e6 && scaledHeight < 1e6)) {
    return Failure(ErrorCode::kTooLarge, "The stereogram would be too large at this zoom.");
  }
  if (!source.empty() && (scaledWidth < 1 || scaledHeight < 1)) {
    return Failure(ErrorCode::kInvalid, "The picture is too small for this zoom.");
  }
  Canvas canvas;
  canvas.gap = static_cast<std::int32_t>(gap);
  canvas.finalWidth = static_cast<int>(scaledWidth);
  canvas.height = static_cast<int>(scaledHeight);
  const ScanMethod& method = ScanMethodOf(settings.scanMethod);
  canvas.runWidth = method.RunWidth(canvas.finalWidth, canvas.gap);
  const int start = method.StartColumn(canvas.gap);
  return Generate(canvas, PictureDepth(source, zoom, start, settings.depthSel), input);
}

// From a source of the result's size.
template <class Depth, class Levels>
Result<IndexedImage> FromLevels(const Levels& levels, int width, int height,
                                const RunInput& input) {
  if (auto fits = CheckPictureSize(width, height); !fits) return tl::unexpected(fits.error());
  Canvas canvas;
  canvas.gap = input.settings.gapValue;
  canvas.height = height;
  canvas.finalWidth = width;
  const ScanMethod& method = ScanMethodOf(input.settings.scanMethod);
  canvas.runWidth = method.RunWidth(canvas.finalWidth, canvas.gap);
  return Generate(canvas, Depth(levels, method.StartColumn(canvas.gap)), input);
}

Result<IndexedImage> FromFigure(const FigureRun& figure, const RunInput& input) {
  const TSirdsSettings& settings = input.settings;
  Canvas canvas;
  canvas.gap = settings.gapValue;
  canvas.finalWidth = settings.w;
  canvas.height = settings.h;
  std::optional<IndexedImage> background;
  if (figure.background != nullptr && !figure.background->empty()) {
    auto mapped = MapToPalette(*figure.background, input.pattern.palette().Widened());
    if (!mapped) return mapped;
    background = std::move(*mapped);
    canvas.finalWidth = background->width();
    canvas.height = background->height();
    canvas.background = &*background;
  }
  canvas.runWidth = canvas.finalWidth;
  if (figure.known != nullptr) {
    return Generate(canvas, MapDepth(*figure.known, 0), input, figure.caption);
  }
  const FigureDepth depth(figure.level, figure.code, canvas.finalWidth, canvas.height, settings);
  return Generate(canvas, depth, input, figure.caption);
}

}  // namespace

Result<IndexedImage> MakeSirdFromBitmap(const IndexedImage& source, double zoom,
                                        const RunInput& input) {
  return Run(input, "", [&] { return FromBitmap(source, zoom, input); });
}

Result<IndexedImage> MakeSirdFromDepthMap(const LevelGrid& map, const RunInput& input) {
  return Run(input, "",
             [&] { return FromLevels<MapDepth>(map, map.GridWidth(), map.GridHeight(), input); });
}

Result<IndexedImage> MakeSirdFromFineImage(const FineImage& source, const RunInput& input) {
  return Run(input, "",
             [&] { return FromLevels<FineDepth>(source, source.width(), source.height(), input); });
}

Result<IndexedImage> MakeSirdFromFigure(const FigureRun& figure, const RunInput& input) {
  return Run(input, "Generating Dots", [&] { return FromFigure(figure, input); });
}

}  // namespace plenovia
