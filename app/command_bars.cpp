#include "app/command_bars.h"

#include <initializer_list>

#include "documents/ui/commands.h"

namespace plenovia {

namespace {

constexpr int kNarrow = 6;
constexpr int kWide = 12;

}  // namespace

void FillMainBar(ButtonBar& bar, const ActionOfCommand& action) {
  const auto add = [&](std::initializer_list<int> commands) {
    for (const int command : commands) bar.AddCommand(action(command));
  };
  add({kCmRelocateBar, kCmHelpIndex});
  bar.AddSeparator(kNarrow);
  add({kCmNew, kCmOpen, kCmSave, kCmCopy, kCmPaste, kCmPrint});
  bar.AddSeparator(kNarrow);
  add({kCmZoomIn, kCmZoomOut, kCmFullScreen, kCmColorTable, kCmMakeSirds, kCmWizard});
  bar.AddSeparator(kNarrow);
  add({kCmSettings, kCmPatterns});
  bar.AddSeparator(kWide);
  add({kCmStopProcess, kCmExit});
}

void FillToolsPalette(ButtonBar& bar, const ActionOfCommand& action) {
  for (const int tool :
       {kSelectTool, kMoveTool, kTextTool, kLineTool, kCurveTool, kSquareBoxTool, kRoundBoxTool,
        kPolygonTool, kCircleTool, kGetLevelTool, kApplyLevelTool}) {
    bar.AddExclusive(action(tool));
  }
  for (const int command : {kSetLevel, kMoveObjectUp, kMoveObjectDown, kDeleteObject, kTextFont})
    bar.AddCommand(action(command));
}

}  // namespace plenovia
