// A run as somebody at a terminal follows it.
#pragma once

#include <chrono>

#include "engine/run_monitor.h"

namespace plenovia {

// Shows a line with the percentage on standard error, if that is a terminal, once a run has taken
// half a second; the line goes when the run ends. A stop signal stops the run.
class TerminalMonitor : public RunMonitor {
 public:
  explicit TerminalMonitor(bool quiet);
  void OnProgress(ProgressPhase phase, const ProgressInfo& progress) override;
  bool StopRequested() override;

 private:
  void Show();
  void Clear();

  bool mayShow_;
  bool shown_ = false;
  int percent_ = 0;
  std::chrono::steady_clock::time_point start_;
};

}  // namespace plenovia
