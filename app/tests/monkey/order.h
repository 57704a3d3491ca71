// What must hold whenever the program is at rest.
#pragma once

#include "app/plenovia_wnd.h"

namespace plenovia {

// Fails the test when the frame's state contradicts itself: a dialog or a busy state that nobody
// ended, a gray command that is available, a window without its document, ...
void ExpectOrder(TPlenoviaWnd& frame);

// How many objects the frame owns; the menu's list of windows, made anew each time, does not count.
int ObjectsOf(const TPlenoviaWnd& frame);

}  // namespace plenovia
