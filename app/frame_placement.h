// Where the main frame is on the screen, from one start to the next.
#pragma once

#include <QMainWindow>
#include <QRect>
#include <functional>

#include "platform/profile_file.h"

namespace plenovia {

// Section "WinSize" of the settings: the frame's outer rectangle. Without one, four fifths of the
// screen, centred.
QRect LoadFrameRect(const ProfileFile& settings);
bool LoadStartsMaximised(const ProfileFile& settings);

// Gives a frame that is not yet shown this outer rectangle. What the window manager puts around it
// is known only later: then the inside is made smaller by that much, and `placed` is called. A
// rectangle that reaches out of the desktop is moved into it, and none is larger than it.
void PlaceFrame(QMainWindow& frame, QRect rect, std::function<void()> placed);

// Stores the outer rectangle as far as it lies on the desktop, and whether the frame is maximised;
// then the rectangle that it goes back to.
void SaveFrameRect(const QMainWindow& frame, ProfileFile& settings);

}  // namespace plenovia
