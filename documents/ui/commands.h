// The commands by their numbers, which menus, bars, pictures and hints go by.
#pragma once

namespace plenovia {

enum Command {
  kCmZoomIn = 101,
  kCmZoomOut = 102,
  kCmMakeSirds = 103,
  kCmGrayImage = 104,
  kCmWizard = 105,
  kCmMakeAgain = 106,
  kCmSettings = 107,
  kCmRelocateBar = 109,
  kCmColorTable = 110,
  kCmPatterns = 111,
  kCmFullScreen = 112,
  kCmActualSize = 113,
  kCmZoomToFit = 114,
  kCmMapView = 115,
  kCmMapSize = 116,
  kCmMapSteps = 117,
  kCmLiveView = 130,
  kCmVideoInformation = 119,
  kCmStopProcess = 205,
  kCmCopy = 221,
  kCmPaste = 223,
  kCmUndo = 225,
  kCmRedo = 226,
  kCmSelectAll = 227,
  kCmFirstFigure = 301,
  kCmLastFigure = 330,
  kCmFormula = 397,
  kCmVersion = 398,
  kCmHelpIndex = 901,
  kCmHelpSirds = 902,
  kCmAbout = 903,
  kCmGraphicsLib = 905,
  // The tools of the depth-map editor, and its other commands.
  kSelectTool = 1251,
  kMoveTool = 1252,
  kGetLevelTool = 1253,
  kApplyLevelTool = 1254,
  kTextTool = 1255,
  kLineTool = 1256,
  kCurveTool = 1257,
  kSquareBoxTool = 1258,
  kRoundBoxTool = 1259,
  kPolygonTool = 1260,
  kCircleTool = 1261,
  kSetLevel = 1262,
  kMoveObjectUp = 1263,
  kMoveObjectDown = 1264,
  kDeleteObject = 1265,
  kTextFont = 1266,
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

constexpr bool IsFigureCommand(int command) {
  return command >= kCmFirstFigure && command <= kCmLastFigure;
}

}  // namespace plenovia
