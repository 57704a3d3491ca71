// The main frame.
#pragma once

#include <QMainWindow>
#include <QMdiArea>
#include <QPointer>
#include <QRect>
#include <memory>

#include "app/command_router.h"
#include "engine/sirds_settings.h"
#include "images/sird_patt.h"
#include "platform/profile_file.h"

namespace plenovia {

class ButtonBar;
class HelpWindow;
class PopupHint;
class TCStatusBar;
class TColorWnd;
class TMouseWnd;
class TPrinterInt;
class TSirdsWnd;
class TWelcome;

// Owns what the whole program uses: the one record of stereogram parameters, the pattern library,
// the printer, the bars. Document windows and bars reach it through private messages.
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
  // Fills the menu of figures, shows the frame, loads the settings and the patterns, and closes
  // the start-up picture.
  void SetupWindow(const ProfileFile& settings);

  QMdiArea* Area() const { return area_; }
  CommandRouter& Commands() { return *commands_; }
  TCStatusBar& Status() { return *status_; }
  PopupHint& Hint() { return *hint_; }
  TPrinterInt& Printer() { return *printer_; }
  HelpWindow& Help();
  TSirdsSettings& Settings() { return settings_; }
  // Null until they are loaded.
  TSirdPatt* Patterns() { return patterns_.get(); }
  // GraphicFormat of the file that was opened or saved last.
  int LastFormat() const { return lastFormat_; }
  void SetLastFormat(int format) { lastFormat_ = format; }

  // The one colour table window, or null.
  TColorWnd* ColourTable() const;
  void SetColourTable(TColorWnd* window);

  // The active document window, or null.
  TMouseWnd* GetActiveChild() const;
  // The active window if it shows a picture, or null.
  TSirdsWnd* ActivePicture() const;
  // Shows a new document window, makes it the active one and follows its state.
  void Adopt(TMouseWnd& window);

  // Asks every document window, each as the active one, until one refuses to close.
  bool AllMayClose();
  // Closes them without asking.
  void CloseDocuments();

  bool IsBusy() const { return busy_; }
  // Leaves (true) or enters the busy state, in which most commands are gray.
  void SetProcessState(bool enabled);
  // Long operations announce their begin and end; they may run nested in one another.
  void OperationBegins();
  void OperationEnds();
  void SetBusyCursor(bool busy);
  // Repaints the frame and its windows at once.
  void RepaintAll();
  void UpdatePatternButton();

 protected:
  void customEvent(QEvent* event) override;
  bool event(QEvent* event) override;
  void changeEvent(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  void BuildMathMenu();
  void BuildWindowList();
  void LoadSettings(const ProfileFile& settings);
  void SaveSettings(ProfileFile& settings) const;
  void CascadeNext(QMdiSubWindow& window);

  QMdiArea* area_;
  CommandRouter* commands_;
  TCStatusBar* status_ = nullptr;
  ButtonBar* mainBar_ = nullptr;
  ButtonBar* toolsPalette_ = nullptr;
  PopupHint* hint_ = nullptr;
  QPointer<TWelcome> welcome_;
  QPointer<HelpWindow> help_;
  QPointer<TColorWnd> colourTable_;
  std::unique_ptr<TPrinterInt> printer_;
  std::unique_ptr<TSirdPatt> patterns_;
  TSirdsSettings settings_;
  int lastFormat_ = 1;
  int barLocation_ = 0;
  bool busy_ = true;
  int operations_ = 0;
  int cascaded_ = 0;
  bool closesAfterOperation_ = false;
};

}  // namespace plenovia
