#include <CLI/CLI.hpp>
#include <string>

#include "cli/commands.h"
#include "cli/pattern.h"
#include "cli/source.h"
#include "images/pattern_files.h"

namespace plenovia {

namespace {

Outcome<void> ListPatterns() {
  const auto folder = PatternFolder();
  if (!folder) return tl::unexpected(folder.error());
  std::string lines;
  for (int number = 0; number < kMostPatternFiles; ++number) {
    const auto file = FindPatternFile(number, *folder, UserPatternFolder());
    if (!file) {
      if (number < kShippedPatterns) continue;
      break;
    }
    const auto tile = ReadPicture(file->string());
    if (!tile) return tl::unexpected(tile.error());
    lines += std::to_string(number) + '\t' + PatternFileName(number) + '\t' +
             std::to_string(tile->width()) + 'x' + std::to_string(tile->height()) + '\n';
  }
  return Print(lines);
}

}  // namespace

void AddPatternsCommand(CLI::App& program, Task& task) {
  CLI::App* command = program.add_subcommand("patterns", "List the patterns");
  command->footer(
      "Prints a line for each: its number, which 'sirds make --pattern' takes, a tab, its\n"
      "file, a tab, its size.");
  command->callback([&task] { task = ListPatterns; });
}

}  // namespace plenovia
