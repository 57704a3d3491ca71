#include "app/tests/monkey/watchdog.h"

#include <csignal>
#include <cstdio>

namespace plenovia {

Watchdog::Watchdog(std::chrono::seconds limit)
    : limit_(limit), watched_(pthread_self()), thread_([this] { Watch(); }) {}

Watchdog::~Watchdog() {
  {
    const std::lock_guard lock(mutex_);
    ends_ = true;
  }
  changed_.notify_one();
  thread_.join();
}

void Watchdog::Pat() {
  {
    const std::lock_guard lock(mutex_);
    patted_ = true;
  }
  changed_.notify_one();
}

void Watchdog::Watch() {
  std::unique_lock lock(mutex_);
  while (!ends_) {
    if (!changed_.wait_for(lock, limit_, [this] { return patted_ || ends_; })) {
      std::fprintf(stderr, "A step takes more than %lld seconds.\n",
                   static_cast<long long>(limit_.count()));
      pthread_kill(watched_, SIGABRT);
      return;
    }
    patted_ = false;
  }
}

}  // namespace plenovia
