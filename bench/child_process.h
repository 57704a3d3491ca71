// Programs that are measured as a whole.
#pragma once

#include <string>
#include <vector>

namespace plenovia::bench {

// Runs a program to its end and returns the most memory that it held, in KiB; -1 when it failed.
long RunProgram(const std::vector<std::string>& words);

}  // namespace plenovia::bench
