#include <CLI/CLI.hpp>
#include <string>

#include "cli/commands.h"
#include "cli/pattern.h"
#include "cli/source.h"

namespace plenovia {

namespace {

Outcome<void> ListPatterns() {
  const auto library = PatternLibrary();
  if (!library) return tl::unexpected(library.error());
  std::string lines;
  for (const PatternFile& file : *library) {
    const auto tile = ReadPicture(file.path.string());
    if (!tile) continue;
    lines += std::to_string(file.number) + '\t' + PatternFileName(file.number) + '\t' +
             std::to_string(tile->width()) + 'x' + std::to_string(tile->height()) + '\n';
  }
  return Print(lines);
}

}  // namespace

void AddPatternsCommand(CLI::App& program, Task& task) {
  CLI::App* command = program.add_subcommand("patterns", "List the patterns");
  command->footer(
      "Prints a line for each: its number, which 'sirds make --pattern' takes, a tab, its\n"
      "file, a tab, its size. Files that cannot be read are left out.");
  command->callback([&task] { task = ListPatterns; });
}

}  // namespace plenovia
