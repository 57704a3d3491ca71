// The rows of a run, in bands, on one or more threads.
#pragma once

#include <cstdint>
#include <functional>

#include "engine/run_monitor.h"

namespace plenovia {

// How many rows of `bytesPerRow` bytes are worked on between two looks at the monitor: all of them,
// halved (rounded up) until a band takes at most 32000 bytes or is a single row.
int BandHeight(int rows, int bytesPerRow);

// Makes one worker for each thread. A worker owns its buffers and is called with one scan line
// after the other.
using RowWorker = std::function<void(int scanLine)>;
using WorkerFactory = std::function<RowWorker()>;

// Calls the workers for each scan line 0..rows-1 of a run that is `width` columns wide, and after
// each band asks the monitor whether to stop and reports progress at steps of at least 10 percent.
// Returns false when it was stopped; bands that were begun are finished then. What a worker throws
// ends the run and is thrown again from here.
[[nodiscard]] bool RunBands(int width, int rows, int threads, const WorkerFactory& makeWorker,
                            RunMonitor& monitor);

}  // namespace plenovia
