// The subcommands of the program, one file each.
#pragma once

#include <functional>

#include "cli/outcome.h"

namespace CLI {
class App;
}  // namespace CLI

namespace plenovia {

// What is to be done once the command line is understood.
using Task = std::function<Outcome<void>()>;

// Each adds one subcommand; `task` is set when the command line names it.
void AddMakeCommand(CLI::App& program, Task& task);
void AddDepthCommand(CLI::App& program, Task& task);
void AddRevealCommand(CLI::App& program, Task& task);
void AddFiguresCommand(CLI::App& program, Task& task);
void AddPatternsCommand(CLI::App& program, Task& task);
void AddInfoCommand(CLI::App& program, Task& task);

}  // namespace plenovia
