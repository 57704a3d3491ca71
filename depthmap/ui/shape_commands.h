// What the menu does with the selected shapes of a map, and the clipboard they go by.
#pragma once

#include <QByteArray>
#include <QList>
#include <QWidget>

#include "depthmap/depth_list.h"

namespace plenovia {

// Carries out one of the commands that IsShapeCommand() knows. `parent` is the parent of dialogs;
// it may go while they are open. `list` outlives the call.
void RunShapeCommand(TDepthList& list, int command, QWidget* parent);

// In what formats shapes are put on the clipboard: as the bytes of a depth-map file, and as a text
// that holds them.
QList<QByteArray> ShapeFormats();
// Pastes what came in one of them; false when it holds no shapes.
bool PasteShapes(TDepthList& list, const QByteArray& bytes);

}  // namespace plenovia
