// The bar beside the tools palette, with the level at hand of the active depth map.
#pragma once

#include <QPointer>
#include <QToolBar>

namespace plenovia {

class BusyState;
class Desk;
class LevelPanel;
class TCStatusBar;
class TMapWindow;

// Shown while a depth map is open. Also shows in the status bar what the active map tells, as long
// as no operation shows its progress there. What it is given outlives it.
class LevelBar : public QToolBar {
  Q_OBJECT

 public:
  LevelBar(QWidget* frame, Desk& desk, const BusyState& busy, TCStatusBar& status);

  // Shows what is true of the desk's windows now.
  void Follow();

 private:
  void ShowWithMaps();

  Desk& desk_;
  const BusyState& busy_;
  TCStatusBar& status_;
  LevelPanel* panel_;
  QPointer<TMapWindow> map_;
};

}  // namespace plenovia
