#include "bench/child_process.h"

#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace plenovia::bench {

long RunProgram(const std::vector<std::string>& words) {
  std::vector<char*> arguments;
  for (const std::string& word : words) arguments.push_back(const_cast<char*>(word.c_str()));
  arguments.push_back(nullptr);
  pid_t child = 0;
  if (posix_spawnp(&child, arguments[0], nullptr, nullptr, arguments.data(), environ) != 0) {
    return -1;
  }
  int status = 0;
  rusage usage{};
  if (wait4(child, &status, 0, &usage) < 0 || status != 0) return -1;
  return usage.ru_maxrss;
}

}  // namespace plenovia::bench
