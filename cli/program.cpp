#include "cli/program.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <exception>
#include <memory>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "cli/commands.h"
#include "cli/help_formatter.h"
#include "cli/stop_signals.h"

namespace plenovia {

namespace {

Complaint Misunderstood(const CLI::App& program, std::string what) {
  std::string help = "sirds";
  for (const CLI::App* command : program.get_subcommands()) help += " " + command->get_name();
  return {ExitStatus::kWrongUsage, std::move(what) + " (see '" + help + " --help')"};
}

// What is wrong with words that have no place on the command line.
std::string AboutExtras(const CLI::App& program) {
  const std::vector<std::string> extras = program.remaining(true);
  const auto option = std::find_if(extras.begin(), extras.end(),
                                   [](const std::string& word) { return word.starts_with('-'); });
  if (option != extras.end()) return "unknown option '" + *option + "'";
  const bool inCommand = !program.get_subcommands().empty();
  return (inCommand ? "one word too many: '" : "unknown command '") + extras.front() + "'";
}

ExitStatus Ended(const Outcome<void>& outcome) {
  if (outcome) return ExitStatus::kDone;
  Report(outcome.error());
  return outcome.error().status;
}

ExitStatus Run(int argc, const char* const* argv) {
  CLI::App program("Makes single-image random-dot stereograms and finds the depth in them.",
                   "sirds");
  program.formatter(std::make_shared<HelpFormatter>());
  program.set_help_flag("-h,--help", "Print this help");
  program.set_version_flag("--version", "sirds " SIRDS_VERSION)->description("Print the version");
  program.footer(
      "'sirds COMMAND --help' tells more. The exit status is 0 when all went well, 2 for\n"
      "a command line that makes no sense, 1 for any other failure.");
  program.require_subcommand(0, 1);
  Task task;
  AddMakeCommand(program, task);
  AddDepthCommand(program, task);
  AddRevealCommand(program, task);
  AddFiguresCommand(program, task);
  AddPatternsCommand(program, task);
  AddInfoCommand(program, task);
  for (CLI::App* command : program.get_subcommands({})) command->group("Commands");
  try {
    program.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    if (error.get_exit_code() == 0) {
      std::ostringstream help;
      program.exit(error, help, help);
      return Ended(Print(help.str()));
    }
    const bool extras = dynamic_cast<const CLI::ExtrasError*>(&error) != nullptr;
    Report(Misunderstood(program, extras ? AboutExtras(program) : error.what()));
    return ExitStatus::kWrongUsage;
  }
  if (!task) {
    Report(Misunderstood(program, "a command is missing"));
    return ExitStatus::kWrongUsage;
  }
  CatchStopSignals();
  return Ended(task());
}

}  // namespace

ExitStatus RunSirds(int argc, const char* const* argv) {
  try {
    return Run(argc, argv);
  } catch (const std::exception& error) {  // no memory, no more threads
    Report({ExitStatus::kFailed, error.what()});
    return ExitStatus::kFailed;
  }
}

}  // namespace plenovia
