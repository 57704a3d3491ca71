// The submenu "Open Recent".
#pragma once

#include <QMenuBar>

namespace plenovia {

struct CommandContext;

// Puts it behind the action `open`, into the menu of the bar that holds that. The bar owns it.
void AddRecentMenu(QMenuBar& bar, QAction* open, CommandContext& context);

}  // namespace plenovia
