// A parallel for: the parts of a loop are shared out among threads.
#pragma once

#include <cstddef>
#include <functional>

namespace plenovia {

// Does one part as one of the workers, 0..workers-1; each worker is a thread of its own, worker 0
// the calling one.
using PartTask = std::function<void(std::size_t worker, int part)>;
// Told on the calling thread, after each part that it did itself, how many parts are done in all.
// False stops the work.
using AfterPart = std::function<bool(int done)>;

// The threads that a user's choice of their number stands for: as many as the processors when it is
// 0, else as chosen.
std::size_t WorkerCount(int threads);

// Does the parts 0..parts-1, each once. Returns false when `after` stopped it; every part that was
// begun is finished then. Where the system gives no more threads, fewer do the work. What a task or
// `after` throws stops the work and is thrown again from here.
[[nodiscard]] bool ParallelFor(int parts, std::size_t workers, const PartTask& task,
                               const AfterPart& after);

}  // namespace plenovia
