#include "engine/ui/frame_monitor.h"

#include <QApplication>

#include "platform/ui/abort_check.h"
#include "platform/ui/private_message.h"

namespace plenovia {

void FrameMonitor::OnProgress(ProgressPhase phase, const ProgressInfo& progress) {
  SendPrivateMessage(frame_, PrivateMessage(phase, progress));
  if (phase == ProgressPhase::kFirstStep && updatesStatus_) {
    SendPrivateMessage(frame_, PrivateMessage(WM_UPDATESTATUS));
  }
}

bool FrameMonitor::StopRequested() {
  const bool stops = PumpAndCheckAbort(frame_) != 0;
  if (stops && beeps_) QApplication::beep();
  return stops;
}

}  // namespace plenovia
