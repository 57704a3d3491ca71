// The inside of Live View: buttons of the views, the picture, the controls, the meter.
#pragma once

#include <QButtonGroup>
#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QWidget>
#include <memory>

#include "live/ui/live_controls.h"
#include "live/ui/live_pane.h"
#include "live/ui/meter_lines.h"

namespace plenovia {

class LiveModel;

class LivePanel : public QWidget {
  Q_OBJECT

 public:
  // `model` outlives it. `screenWidth` is that of the screen in millimetres, 0: as the system says.
  LivePanel(QWidget* parent, LiveModel& model, int screenWidth);

  LivePane& Pane() { return *pane_; }

 Q_SIGNALS:
  void MakeAsked();
  void ViewChosen(LiveView view);
  void FitChosen(bool fit);
  void ScreenWidthChosen(int millimetres);

 protected:
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  bool event(QEvent* event) override;

 private:
  QWidget* MakeViewButtons();
  void ConnectPane();
  void ShowRequest();
  void ShowPicture(const std::shared_ptr<const LivePicture>& picture);
  void ShowMeter(const std::shared_ptr<const LiveMeter>& meter);
  void ChooseView(int view);
  void AskScreenSize();
  void MeasureScreen();

  LiveModel& model_;
  int screenWidth_;
  QButtonGroup* views_;
  LivePane* pane_;
  QLabel* caption_;
  QCheckBox* fit_;
  QPushButton* make_;
  LiveControls* controls_;
  MeterLines* meter_;
};

}  // namespace plenovia
