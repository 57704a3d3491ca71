#include "cli/stop_signals.h"

#include <csignal>
#include <initializer_list>

namespace plenovia {

namespace {

// The one thing that a signal handler may touch.
volatile std::sig_atomic_t came = 0;

extern "C" void NoteSignal(int) {
  came = 1;
}

}  // namespace

void CatchStopSignals() {
  for (const int number : {SIGINT, SIGTERM, SIGHUP}) {
    struct sigaction action {};
    sigaction(number, nullptr, &action);
    if (action.sa_handler == SIG_IGN) continue;
    action = {};
    action.sa_handler = NoteSignal;
    action.sa_flags = SA_RESTART;
    sigaction(number, &action, nullptr);
  }
  std::signal(SIGXFSZ, SIG_IGN);
}

bool StopSignalCame() {
  return came != 0;
}

}  // namespace plenovia
