#include "engine/bands.h"

#include <algorithm>
#include <atomic>
#include <thread>
#include <vector>

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
  std::atomic<int> next{0};
  std::atomic<int> finished{0};
  std::atomic<bool> stop{false};

  // Takes bands until none is left; `after` is told of each and says whether to go on.
  const auto work = [&](const RowWorker& shiftRow, const auto& after) {
    while (!stop.load(std::memory_order_relaxed)) {
      const int index = next.fetch_add(1);
      if (index >= bands) return;
      const int end = std::min(rows, (index + 1) * band);
      for (int y = index * band; y < end; ++y) shiftRow(y);
      finished.fetch_add(1);
      if (!after()) stop = true;
    }
  };

  const auto helpers = static_cast<std::size_t>(std::clamp(threads, 1, bands) - 1);
  std::vector<RowWorker> workers(helpers);
  for (RowWorker& worker : workers) worker = makeWorker();
  const RowWorker own = makeWorker();
  {
    std::vector<std::jthread> pool;
    pool.reserve(helpers);
    for (const RowWorker& worker : workers) {
      pool.emplace_back([&work, &worker] { work(worker, [] { return true; }); });
    }
    ProgressSteps progress(width, rows, monitor);
    work(own, [&] {
      if (monitor.StopRequested()) return false;
      progress.BandDone((finished.load() - 1) * band);
      return true;
    });
  }
  return !stop;
}

}  // namespace plenovia
