#include "app/command_table.h"

#include <QtGlobal>

#include "app/enablers.h"
#include "app/exchange_commands.h"
#include "app/file_commands.h"
#include "app/info_commands.h"
#include "app/make_again.h"
#include "app/map_commands.h"
#include "app/object_dock.h"
#include "app/save_commands.h"
#include "app/sirds_commands.h"
#include "app/view_commands.h"

namespace plenovia {

namespace {

// Of commands that only document windows carry out and that are available without one too.
void CmNothing(CommandContext&) {}

constexpr auto kFile = QT_TRANSLATE_NOOP("Commands", "&File");
constexpr auto kEdit = QT_TRANSLATE_NOOP("Commands", "&Edit");
constexpr auto kGraphics = QT_TRANSLATE_NOOP("Commands", "&Graphics");
constexpr auto kShapes = QT_TRANSLATE_NOOP("Commands", "&Shapes");
constexpr auto kMath = QT_TRANSLATE_NOOP("Commands", "&Math SIRDS");
constexpr auto kWindow = QT_TRANSLATE_NOOP("Commands", "&Window");
constexpr auto kHelp = QT_TRANSLATE_NOOP("Commands", "&Help");

#define T(text) QT_TRANSLATE_NOOP("Commands", text)

// clang-format off
constexpr CommandRow kCommands[] = {
    {kFile, kCmNew, T("&New"), T("Create a New Depth File"), &CmFileNew, &IsIdle, "Ctrl+N"},
    {kFile, kCmOpen, T("&Open"), T("Open an Image File"), &CmFileOpen, &IsIdle, "Ctrl+O"},
    {kFile, kCmSave, T("&Save"), T("Save Image to Disk"), &CmFileSave, &CanSave, "Ctrl+S"},
    {kFile, kCmSaveAs, T("Save &As..."), T("Save Under new file name"), &CmFileSaveAs, &CanSave, "Ctrl+Shift+S"},
    {kFile, 0, nullptr, nullptr, nullptr, nullptr},
    {kFile, kCmPrint, T("&Print"), T("Print Image"), &CmPrint, &HasPicture, "Ctrl+P"},
    {kFile, kCmPrinterSetup, T("P&rinter Setup"), T("Access Printer Setup"), &CmPrinterSetup, nullptr},
    {kFile, 0, nullptr, nullptr, nullptr, nullptr},
    {kFile, kCmExit, T("E&xit"), T("Exit Plenovia"), &CmExit, &IsIdle, "Ctrl+Q"},
    {kEdit, kCmUndo, T("&Undo"), T("Take back the last step"), nullptr, nullptr, "Ctrl+Z"},
    {kEdit, kCmRedo, T("&Redo"), T("Do again what was taken back"), nullptr, nullptr, "Ctrl+Shift+Z; Ctrl+Y"},
    {kEdit, 0, nullptr, nullptr, nullptr, nullptr},
    {kEdit, kCmCut, T("Cu&t"), T("Move the selected shapes to the clipboard"), nullptr, nullptr, "Ctrl+X"},
    {kEdit, kCmCopy, T("&Copy"), T("Copy to Clipboard"), nullptr, &IsIdle, "Ctrl+C"},
    {kEdit, kCmPaste, T("&Paste"), T("Paste from Clipboard"), &CmPaste, &CanPaste, "Ctrl+V"},
    {kEdit, kCmDuplicate, T("&Duplicate"), T("Put copies of the selected shapes beside them"), nullptr, nullptr, "Ctrl+D"},
    {kEdit, 0, nullptr, nullptr, nullptr, nullptr},
    {kEdit, kCmSelectAll, T("Select &All"), T("Select all shapes of the depth map"), nullptr, nullptr, "Ctrl+A"},
    {kEdit, 0, nullptr, nullptr, nullptr, nullptr},
    {kEdit, kCmMapSteps, T("Make &Steps..."), T("Make the selected shape into a slope or a round of steps"), nullptr, nullptr, "N"},
    {kEdit, kCmMapSize, T("Map Si&ze..."), T("Give the depth map another size"), &CmMapSize, &HasMap},
    {kGraphics, kCmVideoInformation, T("&Video Information"), T("Get Information about the operating video driver"), &CmVideoInformation, nullptr},
    {kGraphics, 0, nullptr, nullptr, nullptr, nullptr},
    {kGraphics, kCmZoomIn, T("Zoom &In"), T("Zoom In"), nullptr, &IsIdle, "Ctrl++; Ctrl+="},
    {kGraphics, kCmZoomOut, T("Zoom &Out"), T("Zoom Out"), nullptr, &IsIdle, "Ctrl+-"},
    {kGraphics, kCmActualSize, T("&Actual Size"), T("Zoom to the size of the picture"), nullptr, &IsIdle, "Ctrl+0"},
    {kGraphics, kCmZoomToFit, T("&Zoom to Fit"), T("Show all of the map"), nullptr, &IsIdle, "Ctrl+9"},
    {kGraphics, kCmMapView, T("Map View: &Next"), T("Show the map as outlines, shaded, or both"), nullptr, nullptr, "O"},
    {kGraphics, kCmFullScreen, T("&Full Screen"), T("View Full Screen"), nullptr, nullptr, "F11"},
    {kGraphics, kCmLiveView, T("&Live View"), T("Show or hide the stereogram as it changes"), &CmLiveView, nullptr, "F9"},
    {kGraphics, 0, nullptr, nullptr, nullptr, nullptr},
    {kGraphics, kCmWizard, T("SIRDS &Wizard"), T("Use SIRDS Wizard"), &CmWizard, nullptr, "Ctrl+Shift+N"},
    {kGraphics, kCmMakeSirds, T("&Make SIRDS"), T("Create SIRDS from a loaded image"), &CmMakeSirds, &CanMakeSirds, "F5"},
    {kGraphics, kCmMakeAgain, T("Ma&ke Again"), T("Make the stereogram anew with the settings of now"), &CmMakeAgain, &CanMakeAgain, "F5"},
    {kGraphics, kCmGrayImage, T("&Gray Image"), T("Turn current image into a gray scale image"), &CmNothing, nullptr, "Ctrl+G"},
    {kGraphics, kCmSettings, T("&SIRDS Settings"), T("Edit SIRDS Setup parameters"), &CmSettings, nullptr, "Ctrl+,"},
    {kGraphics, kCmPatterns, T("SIRDS &Patterns"), T("Select a SIRDS Pattern"), &CmPatterns, nullptr, "Ctrl+T"},
    {kGraphics, kCmColorTable, T("Color &Table"), T("View the Color Map for a loaded image"), &CmColorTable, &HasColours},
    {kShapes, kShapesToTop, T("To &Top"), T("Put the selected shapes above all others"), nullptr, nullptr, "Ctrl+Shift+]"},
    {kShapes, kMoveObjectUp, T("Move Depth Object &Up"), T("Move Depth Object Up"), nullptr, nullptr, "Ctrl+]"},
    {kShapes, kMoveObjectDown, T("Move Depth Object Do&wn"), T("Move Depth Object Down"), nullptr, nullptr, "Ctrl+["},
    {kShapes, kShapesToBottom, T("To &Bottom"), T("Put the selected shapes below all others"), nullptr, nullptr, "Ctrl+Shift+["},
    {kShapes, kDeleteObject, T("&Delete Selected Depth Object"), T("Delete Selected Depth Object"), nullptr, nullptr, "Del"},
    {kShapes, 0, nullptr, nullptr, nullptr, nullptr},
    {kShapes, kTurnLeft, T("Turn &Left"), T("Turn the selected shapes to the left"), nullptr, nullptr, "Shift+R"},
    {kShapes, kTurnRight, T("Turn &Right"), T("Turn the selected shapes to the right"), nullptr, nullptr, "Ctrl+R"},
    {kShapes, kRotate, T("R&otate..."), T("Turn polygons and lines by any angle"), nullptr, nullptr, "Ctrl+Shift+R"},
    {kShapes, kMirrorLeftRight, T("&Mirror Left and Right"), T("Exchange the left and the right of the selected shapes"), nullptr, nullptr, "H"},
    {kShapes, kMirrorUpDown, T("Mirror U&p and Down"), T("Exchange the top and the bottom of the selected shapes"), nullptr, nullptr, "Shift+H"},
    {kShapes, 0, nullptr, nullptr, nullptr, nullptr},
    {kShapes, kAlignLeft, T("Align Left &Edges"), T("Line up the left edges of the selected shapes"), nullptr, nullptr},
    {kShapes, kAlignCentre, T("Align &Centres"), T("Line up the middles of the selected shapes from left to right"), nullptr, nullptr},
    {kShapes, kAlignRight, T("Align Right Ed&ges"), T("Line up the right edges of the selected shapes"), nullptr, nullptr},
    {kShapes, kAlignTop, T("Align Top Edge&s"), T("Line up the top edges of the selected shapes"), nullptr, nullptr},
    {kShapes, kAlignMiddle, T("&Align Middles"), T("Line up the middles of the selected shapes from top to bottom"), nullptr, nullptr},
    {kShapes, kAlignBottom, T("Al&ign Bottom Edges"), T("Line up the bottom edges of the selected shapes"), nullptr, nullptr},
    {kShapes, 0, nullptr, nullptr, nullptr, nullptr},
    {kShapes, kSpreadAcross, T("E&qual Gaps Across"), T("Make the gaps between shapes equal from left to right"), nullptr, nullptr},
    {kShapes, kSpreadDown, T("Equal Gaps Dow&n"), T("Make the gaps between shapes equal from top to bottom"), nullptr, nullptr},
    {kShapes, 0, nullptr, nullptr, nullptr, nullptr},
    {kShapes, kObjectList, T("Ob&ject List"), T("Show the shapes of the map in their order"), &CmObjectList, &IsIdle, "F4"},
    {kMath, kCmVersion, T("&Version"), T("Get Math Library version"), &CmVersion, nullptr},
    {kMath, kCmFormula, T("&Formula..."), T("Make a stereogram of a formula z = f(x, y)"), &CmFormula, nullptr},
    {kMath, 0, nullptr, nullptr, nullptr, nullptr},
    {kWindow, kCmCascade, T("&Cascade"), T("Cascade all Windows"), &CmCascade, &HasWindows},
    {kWindow, kCmTile, T("&Tile"), T("Tile all Windows"), &CmTile, &HasWindows},
    {kWindow, kCmArrangeIcons, T("Arrange &Icons"), T("Arrange Icons"), &CmArrangeIcons, &HasWindows},
    {kWindow, kCmCloseAll, T("C&lose All"), T("Close all windows"), &CmCloseAll, &HasWindows, "Ctrl+Shift+W"},
    {kHelp, kCmHelpIndex, T("&Index"), T("Access Online Help"), &CmHelpIndex, nullptr, "F1"},
    {kHelp, kCmHelpSirds, T("&SIRDS"), T("Overview on SIRDS"), &CmHelpSirds, nullptr},
    {kHelp, 0, nullptr, nullptr, nullptr, nullptr},
    {kHelp, kCmGraphicsLib, T("&Graphics Lib"), T("Get graphics library version"), &CmGraphicsLib, nullptr},
    {kHelp, kCmAbout, T("&About"), T("About Plenovia"), &CmAbout, nullptr},
    {nullptr, kCmRelocateBar, T("Relocate Button Bar"), T("Relocate Button Bar"), nullptr, nullptr},
    {nullptr, kCmStopProcess, T("Stop Current Process"), T("Stop Current Process"), &CmStopProcess, &IsBusy, "Esc"},
    {nullptr, kSelectTool, T("Select Tool"), T("Select Tool"), nullptr, nullptr, "S"},
    {nullptr, kMoveTool, T("Move Tool"), T("Move Tool"), nullptr, nullptr, "M"},
    {nullptr, kGetLevelTool, T("Get Object Level Tool"), T("Get Object Level Tool"), nullptr, nullptr, "G"},
    {nullptr, kApplyLevelTool, T("Apply Object Level Tool"), T("Apply Object Level Tool"), nullptr, nullptr, "A"},
    {nullptr, kTextTool, T("Draw Text Object Tool"), T("Draw Text Object Tool"), nullptr, nullptr, "T"},
    {nullptr, kLineTool, T("Draw Line Object Tool"), T("Draw Line Object Tool"), nullptr, nullptr, "L"},
    {nullptr, kCurveTool, T("Draw Curve Object Tool"), T("Draw Curve Object Tool"), nullptr, nullptr, "C"},
    {nullptr, kSquareBoxTool, T("Draw [Square Corner] Box Object Tool"), T("Draw [Square Corner] Box Object Tool"), nullptr, nullptr, "B"},
    {nullptr, kRoundBoxTool, T("Draw [Round Corner] Box Object Tool"), T("Draw [Round Corner] Box Object Tool"), nullptr, nullptr, "R"},
    {nullptr, kPolygonTool, T("Draw Polygon Object Tool"), T("Draw Polygon Object Tool"), nullptr, nullptr, "P"},
    {nullptr, kCircleTool, T("Draw Cyrcle Object Tool"), T("Draw Cyrcle Object Tool"), nullptr, nullptr, "E"},
    {nullptr, kSetLevel, T("Select and Set Level"), T("Select and Set Level"), nullptr, nullptr, "V"},
    {nullptr, kTextFont, T("Select Text Object Font"), T("Select Text Object Font"), nullptr, nullptr},
};
// clang-format on

#undef T

}  // namespace

std::span<const CommandRow> CommandTable() {
  return kCommands;
}

}  // namespace plenovia
