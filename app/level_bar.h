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

// Also shows in the status bar what the active map tells, as long as no operation shows its
// progress there. What it is given outlives it.
class LevelBar : public QToolBar {
  Q_OBJECT

 public:
  LevelBar(QWidget* frame, Desk& desk, const BusyState& busy, TCStatusBar& status);

 private:
  void Follow();

  Desk& desk_;
  const BusyState& busy_;
  TCStatusBar& status_;
  LevelPanel* panel_;
  QPointer<TMapWindow> map_;
};

}  // namespace plenovia
