#include <CLI/CLI.hpp>
#include <filesystem>
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
  constexpr int kShipped = 20;
  std::string lines;
  for (int number = 0;; ++number) {
    const std::string name = PatternFileName(number);
    std::error_code ignored;
    if (!std::filesystem::exists(*folder / name, ignored)) {
      if (number < kShipped) continue;
      break;
    }
    const auto tile = ReadPicture((*folder / name).string());
    if (!tile) return tl::unexpected(tile.error());
    lines += std::to_string(number) + '\t' + name + '\t' + std::to_string(tile->width()) + 'x' +
             std::to_string(tile->height()) + '\n';
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
