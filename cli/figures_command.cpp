#include <CLI/CLI.hpp>
#include <string>

#include "cli/commands.h"
#include "cli/figure_list.h"

namespace plenovia {

namespace {

Outcome<void> ListFigures() {
  const FigureList figures;
  std::string lines;
  int number = 0;
  for (const std::string& title : figures.titles()) {
    lines += std::to_string(number++) + '\t' + title + '\n';
  }
  return Print(lines);
}

}  // namespace

void AddFiguresCommand(CLI::App& program, Task& task) {
  CLI::App* command = program.add_subcommand("figures", "List the mathematical figures");
  command->footer(
      "Prints a line for each: its number, a tab, its title. Both name a figure as a\n"
      "SOURCE: figure:NUMBER or figure:TITLE.");
  command->callback([&task] { task = ListFigures; });
}

}  // namespace plenovia
