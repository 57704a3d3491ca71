#include "app/command_table.h"

#include <QtGlobal>

#include "app/enablers.h"
#include "app/exchange_commands.h"
#include "app/file_commands.h"
#include "app/info_commands.h"
#include "app/sirds_commands.h"
#include "app/view_commands.h"

namespace plenovia {

namespace {

constexpr auto kFile = QT_TRANSLATE_NOOP("Commands", "&File");
constexpr auto kEdit = QT_TRANSLATE_NOOP("Commands", "&Edit");
constexpr auto kGraphics = QT_TRANSLATE_NOOP("Commands", "&Graphics");
constexpr auto kMath = QT_TRANSLATE_NOOP("Commands", "&Math SIRDS");
constexpr auto kWindow = QT_TRANSLATE_NOOP("Commands", "&Window");
constexpr auto kHelp = QT_TRANSLATE_NOOP("Commands", "&Help");

#define T(text) QT_TRANSLATE_NOOP("Commands", text)

// clang-format off
constexpr CommandRow kCommands[] = {
    {kFile, kCmNew, T("&New"), T("Create a New Depth File"), &CmFileNew, &IsIdle},
    {kFile, kCmOpen, T("&Open"), T("Open an Image File"), &CmFileOpen, &IsIdle},
    {kFile, kCmSave, T("&Save"), T("Save Image to Disk"), &CmFileSave, &CanSave},
    {kFile, kCmSaveAs, T("&Save As..."), T("Save Under new file name"), nullptr, nullptr},
    {kFile, 0, nullptr, nullptr, nullptr, nullptr},
    {kFile, kCmPrint, T("&Print"), T("Print Image"), &CmPrint, &CanWorkOnPicture},
    {kFile, kCmPrinterSetup, T("P&rinter Setup"), T("Access Printer Setup"), &CmPrinterSetup, nullptr},
    {kFile, 0, nullptr, nullptr, nullptr, nullptr},
    {kFile, kCmExit, T("E&xit"), T("Exit Plenovia"), &CmExit, &IsIdle},
    {kEdit, kCmCopy, T("&Copy"), T("Copy to Clipboard"), &CmCopy, &CanCopy},
    {kEdit, kCmPaste, T("&Paste"), T("Paste from Clipboard"), &CmPaste, &CanPaste},
    {kGraphics, kCmVideoInformation, T("&Video Information"), T("Get Information about the operating video driver"), &CmVideoInformation, nullptr},
    {kGraphics, 0, nullptr, nullptr, nullptr, nullptr},
    {kGraphics, kCmZoomIn, T("Zoom &In"), T("Zoom In"), &CmZoomIn, &CanZoomIn},
    {kGraphics, kCmZoomOut, T("Zoom &Out"), T("Zoom Out"), &CmZoomOut, &CanZoomOut},
    {kGraphics, kCmFullScreen, T("&Full Screen"), T("View Full Screen"), nullptr, nullptr},
    {kGraphics, 0, nullptr, nullptr, nullptr, nullptr},
    {kGraphics, kCmWizard, T("SIRDS &Wizard"), T("Use SIRDS Wizard"), &CmWizard, nullptr},
    {kGraphics, kCmMakeSirds, T("&Make SIRDS"), T("Create SIRDS from a loaded image"), &CmMakeSirds, &CanMakeSirds},
    {kGraphics, kCmGrayImage, T("&Gray Image"), T("Turn current image into a gray scale image"), &CmGrayImage, nullptr},
    {kGraphics, kCmSettings, T("&SIRDS Settings"), T("Edit SIRDS Setup parameters"), &CmSettings, nullptr},
    {kGraphics, kCmPatterns, T("SIRDS &Patterns"), T("Select a SIRDS Pattern"), &CmPatterns, nullptr},
    {kGraphics, kCmColorTable, T("Color &Table"), T("View the Color Map for a loaded image"), &CmColorTable, &CanCopy},
    {kMath, kCmVersion, T("&Version"), T("Get Math Library version"), &CmVersion, nullptr},
    {kMath, 0, nullptr, nullptr, nullptr, nullptr},
    {kWindow, kCmCascade, T("&Cascade"), T("Cascade all Windows"), &CmCascade, &HasWindows},
    {kWindow, kCmTile, T("&Tile"), T("Tile all Windows"), &CmTile, &HasWindows},
    {kWindow, kCmArrangeIcons, T("Arrange &Icons"), T("Arrange Icons"), &CmArrangeIcons, &HasWindows},
    {kWindow, kCmCloseAll, T("C&lose All"), T("Close all windows"), &CmCloseAll, &HasWindows},
    {kHelp, kCmHelpIndex, T("&Index"), T("Access Online Help"), &CmHelpIndex, nullptr},
    {kHelp, kCmHelpSirds, T("&SIRDS"), T("Overview on SIRDS"), &CmHelpSirds, nullptr},
    {kHelp, 0, nullptr, nullptr, nullptr, nullptr},
    {kHelp, kCmGraphicsLib, T("&Graphics Lib"), T("Get graphics library version"), &CmGraphicsLib, nullptr},
    {kHelp, kCmAbout, T("&About"), T("About Plenovia"), &CmAbout, nullptr},
    {nullptr, kCmRelocateBar, T("Relocate Button Bar"), T("Relocate Button Bar"), nullptr, nullptr},
    {nullptr, kCmStopProcess, T("Stop Current Process"), T("Stop Current Process"), &CmStopProcess, &IsBusy},
    {nullptr, 1251, T("Select Tool"), T("Select Tool"), nullptr, nullptr},
    {nullptr, 1252, T("Move Tool"), T("Move Tool"), nullptr, nullptr},
    {nullptr, 1253, T("Get Object Level Tool"), T("Get Object Level Tool"), nullptr, nullptr},
    {nullptr, 1254, T("Apply Object Level Tool"), T("Apply Object Level Tool"), nullptr, nullptr},
    {nullptr, 1255, T("Draw Text Object Tool"), T("Draw Text Object Tool"), nullptr, nullptr},
    {nullptr, 1256, T("Draw Line Object Tool"), T("Draw Line Object Tool"), nullptr, nullptr},
    {nullptr, 1257, T("Draw Curve Object Tool"), T("Draw Curve Object Tool"), nullptr, nullptr},
    {nullptr, 1258, T("Draw [Square Corner] Box Object Tool"), T("Draw [Square Corner] Box Object Tool"), nullptr, nullptr},
    {nullptr, 1259, T("Draw [Round Corner] Box Object Tool"), T("Draw [Round Corner] Box Object Tool"), nullptr, nullptr},
    {nullptr, 1260, T("Draw Polygon Object Tool"), T("Draw Polygon Object Tool"), nullptr, nullptr},
    {nullptr, 1261, T("Draw Cyrcle Object Tool"), T("Draw Cyrcle Object Tool"), nullptr, nullptr},
    {nullptr, 1262, T("Select and Set Level"), T("Select and Set Level"), nullptr, nullptr},
    {nullptr, 1263, T("Move Depth Object Up"), T("Move Depth Object Up"), nullptr, nullptr},
    {nullptr, 1264, T("Move Depth Object Down"), T("Move Depth Object Down"), nullptr, nullptr},
    {nullptr, 1265, T("Delete Selected Depth Object"), T("Delete Selected Depth Object"), nullptr, nullptr},
    {nullptr, 1266, T("Select Text Object Font"), T("Select Text Object Font"), nullptr, nullptr},
};
// clang-format on

#undef T

}  // namespace

std::span<const CommandRow> CommandTable() {
  return kCommands;
}

}  // namespace plenovia
