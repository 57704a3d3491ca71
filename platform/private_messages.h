// The numbers of the messages with which windows, dialogs and bars talk to the main frame.
#pragma once

namespace plenovia {

enum PrivateMessageNumber {
  WM_STOPPROCESS = 0x401,       // ends the long operation that runs; all with kStopAllProcesses
  WM_NEEDPATTERNS = 0x402,      // hand the pattern library to the active picture window
  WM_UPDATEFRAME = 0x466,       // repaint the frame and its windows at once
  WM_COLORTABLECLOSED = 0x467,  // the colour table window goes
  WM_SAVECHILD = 0x46B,         // activate the sending window and save it
  WM_UPDATESTATUS = 0x46C,      // refresh the fields of the status bar
  WM_PROGRESS = 0x46E,          // a ProgressInfo; the value is its ProgressPhase
  WM_REFRESHSELF = 0x46F,       // a picture window to itself: repaint, refresh the status bar
  WM_ADDPATTERN = 0x470,        // add the active picture's corner as pattern number `value`
  WM_USERANGEASSET = 0x471,     // from now on depth ranges are not fitted
  WM_BUTTONHINT = 0x4C8,        // the command under the mouse is `value`; below 1: none
};

// The value of WM_STOPPROCESS when the frame closes.
inline constexpr int kStopAllProcesses = 1;

}  // namespace plenovia
