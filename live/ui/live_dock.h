// Live View as a dock of the frame.
#pragma once

#include <QDockWidget>

namespace plenovia {

class LiveModel;
class LivePanel;
enum class LiveView;

// Makes its inside when it is shown for the first time and the frame has been painted.
class LiveDock : public QDockWidget {
  Q_OBJECT

 public:
  // `model` outlives it; `screenWidth` as LivePanel has it.
  LiveDock(QWidget* parent, LiveModel& model, int screenWidth);

  // Null until then.
  LivePanel* Panel() const { return panel_; }
  // Makes its inside now.
  void Fill();

 Q_SIGNALS:
  void MakeAsked();
  void ViewChosen(LiveView view);
  void FitChosen(bool fit);
  void ScreenWidthChosen(int millimetres);
  // It was moved, resized, shown or hidden.
  void PlaceChanged();

 protected:
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void moveEvent(QMoveEvent* event) override;

 private:
  LiveModel& model_;
  int screenWidth_;
  LivePanel* panel_ = nullptr;
};

}  // namespace plenovia
