// The wish of the user or the system that the program end: Ctrl-C and its relatives.
#pragma once

namespace plenovia {

// From now on SIGINT, SIGTERM and SIGHUP (unless it was ignored) are only noted, and a limit on
// file sizes makes writing fail instead of ending the program.
void CatchStopSignals();
// Whether one of them came.
bool StopSignalCame();

}  // namespace plenovia
