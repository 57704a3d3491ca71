#include "app/tests/monkey/step_log.h"

#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <initializer_list>

#ifdef __SANITIZE_ADDRESS__
extern "C" void __sanitizer_set_death_callback(void (*callback)());
extern "C" void __sanitizer_print_stack_trace();
#endif

namespace plenovia {

namespace {

StepLog* theLog = nullptr;

void PrintTheLog() {
  if (theLog != nullptr) theLog->Print();
}

extern "C" void DieOf(int signal) {
  PrintTheLog();
#ifdef __SANITIZE_ADDRESS__
  __sanitizer_print_stack_trace();
#endif
  std::signal(signal, SIG_DFL);
  std::raise(signal);
}

void Write(const char* text) {
  const auto written = write(STDERR_FILENO, text, std::strlen(text));
  static_cast<void>(written);
}

}  // namespace

StepLog::StepLog(std::uint64_t seed) {
  std::snprintf(head_.data(), kLength, "\nThe last steps of the monkey with seed %llu:\n",
                static_cast<unsigned long long>(seed));
  theLog = this;
  std::signal(SIGABRT, &DieOf);
#ifdef __SANITIZE_ADDRESS__
  __sanitizer_set_death_callback(&PrintTheLog);
#else
  for (const int signal : {SIGSEGV, SIGBUS, SIGFPE, SIGILL}) std::signal(signal, &DieOf);
#endif
}

StepLog::~StepLog() {
  theLog = nullptr;
}

void StepLog::Add(const std::string& line) {
  auto& place = lines_[count_++ % kLines];
  std::snprintf(place.data(), kLength, "%s", line.c_str());
  place[kLength - 2] = '\0';
  std::strcat(place.data(), "\n");
}

void StepLog::Print() const {
  Write(head_.data());
  for (std::size_t i = count_ - std::min(count_, kLines); i < count_; ++i) {
    Write(lines_[i % kLines].data());
  }
}

}  // namespace plenovia
