#include "cli/terminal_monitor.h"

#include <unistd.h>

#include <cstdio>

#include "cli/stop_signals.h"

namespace plenovia {

TerminalMonitor::TerminalMonitor(bool quiet)
    : mayShow_(!quiet && isatty(STDERR_FILENO) == 1), start_(std::chrono::steady_clock::now()) {}

void TerminalMonitor::OnProgress(ProgressPhase phase, const ProgressInfo& progress) {
  if (!mayShow_) return;
  if (phase == ProgressPhase::kEnd) {
    Clear();
  } else if (progress.total > 0) {
    percent_ = static_cast<int>(progress.done * 100 / progress.total);
    if (shown_) Show();
  }
}

bool TerminalMonitor::StopRequested() {
  if (mayShow_ && !shown_ &&
      std::chrono::steady_clock::now() - start_ > std::chrono::milliseconds(500)) {
    Show();
  }
  return StopSignalCame();
}

void TerminalMonitor::Show() {
  shown_ = true;
  std::fprintf(stderr, "\rsirds: %d %% ", percent_);
}

void TerminalMonitor::Clear() {
  if (shown_) std::fputs("\r\033[K", stderr);
  shown_ = false;
}

}  // namespace plenovia
