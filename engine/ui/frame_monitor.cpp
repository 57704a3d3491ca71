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
  const Abort seen = PumpAndCheckAbort(frame_);
  ClearUpperVectorHalves();
  sincePump_.start();
  isStopped_ = seen == Abort::kStopped;
  const bool ends = seen != Abort::kNone || (over_ && over_());
  if (ends && beeps_) QApplication::beep();
  return ends;
}

}  // namespace plenovia
