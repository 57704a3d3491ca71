// The line from a generation run to the main frame.
#pragma once

#include <QElapsedTimer>
#include <QPointer>
#include <QWidget>
#include <functional>
#include <utility>

#include "engine/run_monitor.h"

namespace plenovia {

// Sends the run's progress as WM_PROGRESS, keeps the windows alive between bands, though not more
// often than each millisecond, and notices when the run has to stop.
class FrameMonitor final : public RunMonitor {
 public:
  explicit FrameMonitor(QWidget* frame) : frame_(frame) {}

  // The run ends, too, when `over` holds after events were handled.
  void EndWhen(std::function<bool()> over) { over_ = std::move(over); }
  // Sounds when the run is stopped.
  void BeepOnStop() { beeps_ = true; }
  // Has the status bar refreshed once the run has begun.
  void UpdateStatusAtStart() { updatesStatus_ = true; }
  // Whether WM_STOPPROCESS ended the run.
  bool IsStopped() const { return isStopped_; }

  void OnProgress(ProgressPhase phase, const ProgressInfo& progress) override;
  bool StopRequested() override;

 private:
  QPointer<QWidget> frame_;
  QElapsedTimer sincePump_;  // of the last time that events were handled
  std::function<bool()> over_;
  bool isStopped_ = false;
  bool beeps_ = false;
  bool updatesStatus_ = false;
};

}  // namespace plenovia
