// Which buttons stand in the two bars.
#pragma once

#include <QAction>
#include <functional>

#include "app/button_bar.h"

namespace plenovia {

// The action of a command; never null for a command of these bars.
using ActionOfCommand = std::function<QAction*(int command)>;

void FillMainBar(ButtonBar& bar, const ActionOfCommand& action);
// The depth-map editor's tools, then its commands.
void FillToolsPalette(ButtonBar& bar, const ActionOfCommand& action);

}  // namespace plenovia
