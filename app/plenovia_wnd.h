// The main frame.
#pragma once

#include <QMainWindow>
#include <QPointer>
#include <QTimer>

#include "app/busy_state.h"
#include "app/command_context.h"
#include "app/command_router.h"
#include "app/desk.h"
#include "app/program_state.h"
#include "platform/profile_file.h"

namespace plenovia {

class ButtonBar;
class HelpWindow;
class LevelBar;
class LiveHost;
class PopupHint;
class TCStatusBar;
class TWelcome;

// Owns what the whole program uses and puts it together: its state, the desk of document windows,
// the commands, the bars. Document windows and bars reach it through private messages.
class TPlenoviaWnd : public QMainWindow {
  Q_OBJECT

 public:
  // Placed as the settings say, not yet shown. `welcome` is the start-up picture, which the frame
  // closes; it may be null.
  TPlenoviaWnd(const ProfileFile& settings, TWelcome* welcome);
  ~TPlenoviaWnd() override;

  // Inserts the bars, the main bar at `location`: 0 top, 1 left, 2 right.
  void InsertBars(int location);
  void PlaceMainBar(int location);
  int BarLocation() const { return barLocation_; }
  // Fills the menu of figures, shows the frame, loads the settings and closes the start-up picture.
  // The patterns follow once the frame is painted, or when they are needed.
  void SetupWindow(const ProfileFile& settings);

  QMdiArea* Area() const { return &desk_->Area(); }
  // The active document window, or null.
  Document* GetActiveChild() const { return desk_->Active(); }
  CommandRouter& Commands() { return *commands_; }
  // What the frame's commands work on.
  CommandContext& Context() { return context_; }
  TCStatusBar& Status() { return *status_; }
  TSirdsSettings& Settings() { return state_->settings; }
  // Null before the settings are loaded.
  TSirdPatt* Patterns() { return state_->patterns.get(); }
  int LastFormat() const { return state_->lastFormat; }
  void Adopt(Document& window) { desk_->Adopt(window); }
  LiveHost& Live() { return *live_; }
  bool IsBusy() const { return busy_->IsBusy(); }

 protected:
  void customEvent(QEvent* event) override;
  bool event(QEvent* event) override;
  void changeEvent(QEvent* event) override;
  void moveEvent(QMoveEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  void BuildMathMenu();
  void BuildWindowList();
  void LoadSettings(const ProfileFile& settings);
  // Writes what changed.
  void SaveSettings();
  void LoadPatternsSoon();
  void UpdatePatternButton();
  void ShowBusyState();
  HelpWindow& Help();

  ProgramState* state_;
  BusyState* busy_;
  Desk* desk_;
  TCStatusBar* status_;
  PopupHint* hint_;
  CommandContext context_;
  CommandRouter* commands_;
  ButtonBar* mainBar_ = nullptr;
  ButtonBar* toolsPalette_ = nullptr;
  LevelBar* levelBar_ = nullptr;
  LiveHost* live_ = nullptr;
  QPointer<TWelcome> welcome_;
  QTimer settingsDelay_;
  QPointer<HelpWindow> help_;
  int barLocation_ = 0;
  bool painted_ = false;
  bool leaves_ = false;  // as soon as no operation is left: every window agreed
};

}  // namespace plenovia
