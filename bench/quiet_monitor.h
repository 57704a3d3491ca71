// A run that nobody watches.
#pragma once

#include "engine/run_monitor.h"

namespace plenovia::bench {

class QuietMonitor final : public RunMonitor {
 public:
  void OnProgress(ProgressPhase, const ProgressInfo&) override {}
  bool StopRequested() override { return false; }
};

}  // namespace plenovia::bench
