// The whole command line, from its words to the exit status.
#pragma once

#include "cli/outcome.h"

namespace plenovia {

// Does what the words after argv[0] say. Reports a failure on standard error. Takes SIGINT, SIGTERM
// and SIGHUP over once it has understood them. Never throws.
[[nodiscard]] ExitStatus RunSirds(int argc, const char* const* argv);

}  // namespace plenovia
