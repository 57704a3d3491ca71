// What commands work on.
#pragma once

#include <QCoreApplication>
#include <QWidget>
#include <functional>

namespace plenovia {

class BusyState;
class Desk;
class HelpWindow;
class PopupHint;
class ProgramState;
class TCStatusBar;

// All of it is the frame's and lives as long as it.
struct CommandContext {
  QWidget& frame;  // the owner of dialogs, and the receiver of private messages
  Desk& desk;
  ProgramState& state;
  BusyState& busy;
  TCStatusBar& status;
  PopupHint& hint;
  std::function<HelpWindow&()> help;
  std::function<void()> toggleLiveView;
  // Gives a command once the events that wait are handled.
  std::function<void(int command)> runLater;
};

// The texts of commands.
struct Commands {
  Q_DECLARE_TR_FUNCTIONS(Commands)
};

// Repaints the frame and its document windows at once.
void RepaintAll(const CommandContext& context);

}  // namespace plenovia
