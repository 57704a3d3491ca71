// Work in numbered parts, shared out among threads.
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

// Does the parts 0..parts-1. Returns false when it was stopped; parts that were begun are done
// then. Where the system has no more threads, those that there are do the work. What a task or
// `after` throws stops the work and is thrown again from here.
[[nodiscard]] bool ShareParts(int parts, std::size_t workers, const PartTask& task,
                              const AfterPart& after);

}  // namespace plenovia
