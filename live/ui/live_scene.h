// What Live View shows, and what is made for it: values that travel between its parts.
#pragma once

#include <QSize>
#include <QString>
#include <cstdint>
#include <memory>
#include <optional>

#include "engine/fit_depth_range.h"
#include "engine/sirds_settings.h"
#include "platform/indexed_image.h"
#include "platform/level_grid.h"
#include "viewing/level_histogram.h"
#include "viewing/meter.h"
#include "viewing/relief.h"
#include "viewing/rgb_picture.h"

namespace plenovia {

// A picture, levels or a figure; the others are null or 0. Nothing of it changes any more.
struct LiveSource {
  std::shared_ptr<const IndexedImage> picture{};
  double zoom = 1;  // of the picture
  std::shared_ptr<const LevelGrid> levels{};
  std::int32_t figure = 0;  // its code: -(number + 1)
  QString title{};

  bool IsNone() const { return !picture && !levels && figure == 0; }
  bool operator==(const LiveSource&) const = default;
};

// By the keys that show them.
enum class LiveView { kStereogram = 1, kDepth, kRelief, kFound, kAnaglyph, kWiggle };
inline constexpr int kLiveViews = 6;

// All that the result depends on.
struct LiveRequest {
  LiveSource source;
  TSirdsSettings settings;
  std::shared_ptr<const IndexedImage> pattern;
  LiveView view = LiveView::kStereogram;
  bool fit = true;  // a stereogram that is larger than the pane is made at its size
  QSize pane;       // pixels of the display
  ReliefView relief;
  double millimetresPerPixel = 0;  // of the display; 0: not known

  bool operator==(const LiveRequest&) const = default;
};

// One picture for the pane: an indexed one, or a coloured one, or two of them that take turns.
struct LivePicture {
  LiveView view = LiveView::kStereogram;
  std::shared_ptr<const IndexedImage> stereogram;
  RgbPicture colours;
  RgbPicture second;
  FittedRange range;            // that was used
  std::optional<double> found;  // the share found again
  QString problem;              // a sentence, when there is no picture
  bool isWhole = true;          // false: a larger one follows
};

struct LiveMeter {
  RepeatReading repeats;
  StepsReading steps;
  std::optional<double> found;
  SteepReading steep;
  PatternReading pattern;
};

}  // namespace plenovia
