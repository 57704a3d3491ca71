// Time for benchmarks that compare several ways of doing the same work.
#pragma once

#include <algorithm>
#include <chrono>
#include <utility>

namespace plenovia::bench {

// The shortest of several runs, in seconds.
template <class Work>
double Seconds(const Work& work, int runs = 7) {
  double best = 1e9;
  for (int i = 0; i < runs; ++i) {
    const auto start = std::chrono::steady_clock::now();
    work();
    const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
    best = std::min(best, taken.count());
  }
  return best;
}

// The shortest runs of two ways of doing something, in seconds. They take turns, so that what
// else the machine does meets both.
template <class Work, class OtherWork>
std::pair<double, double> SecondsInTurn(const Work& work, const OtherWork& other, int runs = 7) {
  double best = 1e9;
  double otherBest = 1e9;
  for (int i = 0; i < runs; ++i) {
    best = std::min(best, Seconds(work, 1));
    otherBest = std::min(otherBest, Seconds(other, 1));
  }
  return {best, otherBest};
}

// Makes the compiler believe that what `memory` points to is used.
inline void Keep(const void* memory) {
  asm volatile("" : : "g"(memory) : "memory");
}

}  // namespace plenovia::bench
