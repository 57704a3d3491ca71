// The table of all commands: what the menu, the bars, the hints and the enabling are made of.
#pragma once

#include <span>

#include "documents/ui/commands.h"

namespace plenovia {

struct CommandContext;

// A row with number 0 is a separator. A command of the frame without an enabler is always
// available; one without a handler belongs to the document windows or to the application.
struct CommandRow {
  const char* menu;  // null for commands that only the bars carry
  int number;
  const char* text;
  const char* hint;
  void (*handler)(CommandContext&);
  bool (*enabler)(const CommandContext&);
  // As Qt writes them, with "; " between several. Of commands with the same keys the last one that
  // is available has them, the first one when none is.
  const char* keys = nullptr;
};

// The rows in the order of the menus.
std::span<const CommandRow> CommandTable();

}  // namespace plenovia
