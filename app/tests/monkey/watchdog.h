// Notices that a step of a test does not end.
#pragma once

#include <pthread.h>

#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <thread>

namespace plenovia {

// When Pat() is not called for longer than `limit`, the thread that made it gets SIGABRT, where it
// hangs.
class Watchdog {
 public:
  explicit Watchdog(std::chrono::seconds limit);
  Watchdog(const Watchdog&) = delete;
  Watchdog& operator=(const Watchdog&) = delete;
  ~Watchdog();

  void Pat();

 private:
  void Watch();

  const std::chrono::seconds limit_;
  const pthread_t watched_;
  std::mutex mutex_;
  std::condition_variable changed_;
  bool patted_ = false;
  bool ends_ = false;
  std::thread thread_;
};

}  // namespace plenovia
