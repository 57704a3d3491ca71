// How a long operation keeps the windows alive, and notices that it has to stop.
#pragma once

#include <QWidget>

namespace plenovia {

enum class Abort {
  kNone,
  kStopped,  // by WM_STOPPROCESS
  kLeaving,  // the frame closes, and nobody objected; or it is gone
};

// Handles all events that wait: paints, commands, mouse and keys run nested inside the operation,
// questions before a window closes too. Of operations that run nested in one another,
// WM_STOPPROCESS stops the innermost only, a frame that closes stops all of them.
[[nodiscard]] Abort PumpAndCheckAbort(QWidget* frame);

}  // namespace plenovia
