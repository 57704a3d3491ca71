// For a run that nobody watches or stops.
#pragma once

#include "engine/run_monitor.h"

namespace plenovia {

class QuietMonitor final : public RunMonitor {
 public:
  void OnProgress(ProgressPhase, const ProgressInfo&) override {}
  bool StopRequested() override { return false; }
};

}  // namespace plenovia
