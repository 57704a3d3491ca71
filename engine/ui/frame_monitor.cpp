#include "engine/ui/frame_monitor.h"

#include <QApplication>

#include "platform/ui/abort_check.h"
#include "platform/ui/private_message.h"
#include "platform/vector_state.h"

namespace plenovia {

namespace {

// A band can take less than handling events does.
constexpr qint64 kNanosecondsBetweenPumps = 1'000'000;

}  // namespace

void FrameMonitor::OnProgress(ProgressPhase phase, const ProgressInfo& progress) {
  SendPrivateMessage(frame_, PrivateMessage(phase, progress));
  if (phase == ProgressPhase::kFirstStep && updatesStatus_) {
    SendPrivateMessage(frame_, PrivateMessage(WM_UPDATESTATUS));
  }
  ClearUpperVectorHalves();
}

bool FrameMonitor::StopRequested() {
  if (sincePump_.isValid() && sincePump_.nsecsElapsed() < kNanosecondsBetweenPumps) return false;
  const bool stops = PumpAndCheckAbort(frame_) != 0;
  ClearUpperVectorHalves();
  sincePump_.start();
  if (stops && beeps_) QApplication::beep();
  return stops;
}

}  // namespace plenovia
