// How a long operation keeps the windows alive, and notices that it shall stop.
#pragma once

#include <QWidget>

namespace plenovia {

// Handles all events that wait: paints, commands, mouse and keys run nested inside the operation.
// -1 when among them was WM_STOPPROCESS, a request to close `frame` or one of its document windows,
// or the end of the application, or when the frame is gone; else 0. Of operations that run nested
// in one another, WM_STOPPROCESS stops the innermost only, the others stop all of them.
int PumpAndCheckAbort(QWidget* frame);

}  // namespace plenovia
