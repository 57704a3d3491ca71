// What a generation run talks to while it works.
#pragma once

#include "platform/progress.h"

namespace plenovia {

// Called on the thread that started the run.
class RunMonitor {
 public:
  virtual ~RunMonitor() = default;
  virtual void OnProgress(ProgressPhase phase, const ProgressInfo& progress) = 0;
  // Asked between bands of rows. True ends the run.
  virtual bool StopRequested() = 0;
};

}  // namespace plenovia
