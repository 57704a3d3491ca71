// The keys of the depth-map editor that are no commands of the menu.
#pragma once

#include <QKeyEvent>

#include "depthmap/depth_list.h"
#include "depthmap/map_gesture.h"

namespace plenovia {

// Arrow keys move what is selected by a pixel, with Shift by ten; while a key is held, that is one
// step. Tab selects the object below the selected one, with Shift the one above. False for other
// keys, and where there is nothing to do.
bool PressMapKey(TDepthList& list, const QKeyEvent& event);

GestureKeys ToGestureKeys(Qt::KeyboardModifiers modifiers);

}  // namespace plenovia
