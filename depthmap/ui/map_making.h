// What the editor makes by asking for it in a dialog.
#pragma once

#include <QWidget>

#include "depthmap/depth_list.h"
#include "depthmap/ui/text_shapes.h"

namespace plenovia {

// The window that asks may be closed before the dialog is. `list` outlives the call.

// Makes the object selected last into steps.
void AskForSteps(QWidget* owner, TDepthList& list);
// Puts a text with its middle at `middle`, of the current level, and selects its letters. `style`
// is what the dialog begins with. Gives what was chosen; false when nothing was put there.
bool AskForText(QWidget* owner, TDepthList& list, const DepthPoint& middle, TextStyle& style);

}  // namespace plenovia
