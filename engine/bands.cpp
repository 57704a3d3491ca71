#include "engine/bands.h"

#include <algorithm>
#include <cstddef>
#include <vector>

#include "platform/parallel_for.h"

namespace plenovia {

namespace {

// Says how far a run is, at steps of at least 10 percent.
class ProgressSteps {
 public:
  ProgressSteps(int width, int rows, RunMonitor& monitor)
      : width_(width), total_(std::int64_t{width} * rows), monitor_(monitor) {}

  // The band that begins at this row is done.
  void BandDone(int firstRow) {
    const std::int64_t done = width_ * firstRow;
    const std::int64_t percent = done * 100 / total_;
    if (percent < last_ + 10) return;
    last_ = percent;
    monitor_.OnProgress(ProgressPhase::kStep, {"Shifting Dots", done, total_});
  }

 private:
  std::int64_t width_;
  std::int64_t total_;
  std::int64_t last_ = 0;
  RunMonitor& monitor_;
};

}  // namespace

int BandHeight(int rows, int bytesPerRow) {
  constexpr std::int64_t kBandBytes = 32000;
  int band = rows;
  while (std::int64_t{band} * bytesPerRow > kBandBytes && band > 1) band = (band + 1) / 2;
  return band;
}

bool RunBands(int width, int rows, int threads, const WorkerFactory& makeWorker,
              RunMonitor& monitor) {
  const int band = BandHeight(rows, (width + 3) / 4 * 4);
  const int bands = (rows + band - 1) / band;
  std::vector<RowWorker> workers(static_cast<std::size_t>(std::clamp(threads, 1, bands)));
  for (RowWorker& worker : workers) worker = makeWorker();
  ProgressSteps progress(width, rows, monitor);
  return ParallelFor(
      bands, workers.size(),
      [&](std::size_t worker, int index) {
        const int end = std::min(rows, (index + 1) * band);
        for (int y = index * band; y < end; ++y) workers[worker](y);
      },
      [&](int done) {
        if (monitor.StopRequested()) return false;
        progress.BandDone((done - 1) * band);
        return true;
      });
}

}  // namespace plenovia
