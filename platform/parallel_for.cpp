#include "platform/parallel_for.h"

#include <algorithm>
#include <atomic>
#include <exception>
#include <thread>
#include <vector>

namespace plenovia {

std::size_t WorkerCount(int threads) {
  const unsigned count =
      threads > 0 ? static_cast<unsigned>(threads) : std::thread::hardware_concurrency();
  return std::max(1u, count);
}

bool ParallelFor(int parts, std::size_t workers, const PartTask& task, const AfterPart& after) {
  std::atomic<int> next{0};
  std::atomic<int> done{0};
  std::atomic<bool> stop{false};
  std::vector<std::exception_ptr> thrown(std::max<std::size_t>(1, workers));

  const auto work = [&](std::size_t worker) noexcept {
    try {
      while (!stop.load(std::memory_order_relaxed)) {
        const int part = next.fetch_add(1);
        if (part >= parts) return;
        task(worker, part);
        done.fetch_add(1);
        if (worker == 0 && !after(done.load())) stop = true;
      }
    } catch (...) {
      thrown[worker] = std::current_exception();
      stop = true;
    }
  };

  std::vector<std::jthread> pool;
  pool.reserve(thrown.size() - 1);
  try {
    while (pool.size() + 1 < thrown.size()) pool.emplace_back(work, pool.size() + 1);
  } catch (const std::exception&) {  // no more threads
  }
  work(0);
  pool.clear();  // waits
  for (const std::exception_ptr& failure : thrown) {
    if (failure) std::rethrow_exception(failure);
  }
  return !stop;
}

}  // namespace plenovia
