// A monitor that lets runs go on to their end.
#pragma once

#include "engine/run_monitor.h"

namespace plenovia {

class NoMonitor : public RunMonitor {
 public:
  void OnProgress(ProgressPhase, const ProgressInfo&) override {}
  bool StopRequested() override { return false; }
};

}  // namespace plenovia
