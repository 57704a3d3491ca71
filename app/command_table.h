// The table of all commands: what the menu, the bars, the hints and the enabling are made of.
#pragma once

#include <span>

namespace plenovia {

class TPlenoviaWnd;

enum Command {
  kCmZoomIn = 101,
  kCmZoomOut = 102,
  kCmMakeSirds = 103,
  kCmGrayImage = 104,
  kCmWizard = 105,
  kCmSettings = 107,
  kCmRelocateBar = 109,
  kCmColorTable = 110,
  kCmPatterns = 111,
  kCmFullScreen = 112,
  kCmVideoInformation = 119,
  kCmStopProcess = 205,
  kCmCopy = 221,
  kCmPaste = 223,
  kCmFirstFigure = 301,
  kCmLastFigure = 330,
  kCmVersion = 398,
  kCmHelpIndex = 901,
  kCmHelpSirds = 902,
  kCmAbout = 903,
  kCmGraphicsLib = 905,
  kCmSelectTool = 1251,
  kCmExit = 24310,
  kCmNew = 24331,
  kCmOpen = 24332,
  kCmSave = 24333,
  kCmSaveAs = 24334,
  kCmPrint = 24337,
  kCmPrinterSetup = 24338,
  kCmCascade = 24361,
  kCmTile = 24362,
  kCmArrangeIcons = 24364,
  kCmCloseAll = 24365,
};

// A row with number 0 is a separator. A command of the frame without an enabler is always
// available; one without a handler belongs to the document windows or to the application.
struct CommandRow {
  const char* menu;  // null for commands that only the bars carry
  int number;
  const char* text;
  const char* hint;
  void (*handler)(TPlenoviaWnd&);
  bool (*enabler)(const TPlenoviaWnd&);
};

// The rows in the order of the menus.
std::span<const CommandRow> CommandTable();

}  // namespace plenovia
