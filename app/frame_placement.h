// Where the main frame is on the screen, from one start to the next.
#pragma once

#include <QMainWindow>
#include <QRect>

#include "platform/profile_file.h"

namespace plenovia {

// Section "WinSize" of the settings: the frame's outer rectangle. Without one, 640 x 480 at the top
// left.
QRect LoadFrameRect(const ProfileFile& settings);
bool LoadStartsMaximised(const ProfileFile& settings);

// Gives a frame that is not yet shown this outer rectangle. What the window manager puts around it
// is known only later: then the inside is made smaller by that much. A rectangle that lies on no
// screen at all is moved to the first one, and none is larger than the desktop.
void PlaceFrame(QMainWindow& frame, QRect rect);

// Stores the outer rectangle as far as it lies on the desktop.
void SaveFrameRect(const QMainWindow& frame, ProfileFile& settings);

}  // namespace plenovia
