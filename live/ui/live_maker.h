// Makes what Live View shows.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

#include "engine/run_monitor.h"
#include "live/ui/live_scene.h"
#include "viewing/level_field.h"

namespace plenovia {

// Keeps what the next request is likely to need again: the levels of a figure, the histogram. Used
// by one thread.
class LiveMaker {
 public:
  LiveMaker();
  LiveMaker(const LiveMaker&) = delete;
  LiveMaker& operator=(const LiveMaker&) = delete;
  ~LiveMaker();

  using Show = std::function<void(LivePicture)>;
  // Hands over the picture of the view; of a large source a smaller one first. A stereogram dot for
  // dot is the one that "Make SIRDS" gives. Nothing comes when the monitor stops it.
  void Make(const LiveRequest& request, RunMonitor& monitor, const Show& show);
  // The levels of the request's source. Of a figure a few are left out.
  std::shared_ptr<const LevelHistogram> Histogram(const LiveRequest& request);
  // Nothing when the monitor stops it.
  std::optional<LiveMeter> Measure(const LiveRequest& request, RunMonitor& monitor);

 private:
  struct Scene;
  struct KeptFigure;
  struct KeptHistogram;
  struct KeptPattern;

  Scene Prepare(const LiveRequest& request, FieldSize room);
  std::shared_ptr<const LevelField> FigureRows(const LiveRequest& request);
  void MakeStereogram(const LiveRequest& request, FieldSize room, RunMonitor& monitor,
                      const Show& show, bool isWhole);
  void MakeFound(const LiveRequest& request, FieldSize room, RunMonitor& monitor, const Show& show,
                 bool isWhole);
  LivePicture MakeColours(const LiveRequest& request);

  std::unique_ptr<KeptFigure> figure_;
  std::unique_ptr<KeptHistogram> histogram_;
  std::unique_ptr<KeptPattern> pattern_;
};

}  // namespace plenovia
