// What a long piece of work reports while it runs.
#pragma once

#include <cstdint>
#include <string>

namespace plenovia {

enum class ProgressPhase { kStart = 1, kEnd = 2, kFirstStep = 3, kStep = 4 };

struct ProgressInfo {
  std::string text;        // at most 39 characters for the user
  std::int64_t done = 0;   // work done so far
  std::int64_t total = 0;  // work in all, above 0 in the two step phases
};

}  // namespace plenovia
