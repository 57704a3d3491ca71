#include "live/ui/live_dock.h"

#include <QTimer>

#include "live/ui/live_model.h"
#include "live/ui/live_panel.h"

namespace plenovia {

LiveDock::LiveDock(QWidget* parent, LiveModel& model, int screenWidth)
    : QDockWidget(tr("Live View"), parent), model_(model), screenWidth_(screenWidth) {
  setObjectName(QStringLiteral("liveDock"));
  setAllowedAreas(Qt::LeftDockWidgetArea | Qt::RightDockWidgetArea);
  connect(this, &QDockWidget::topLevelChanged, this, &LiveDock::PlaceChanged);
}

void LiveDock::Fill() {
  if (panel_ != nullptr) return;
  panel_ = new LivePanel(this, model_, screenWidth_);
  connect(panel_, &LivePanel::MakeAsked, this, &LiveDock::MakeAsked);
  connect(panel_, &LivePanel::ViewChosen, this, &LiveDock::ViewChosen);
  connect(panel_, &LivePanel::FitChosen, this, &LiveDock::FitChosen);
  connect(panel_, &LivePanel::ScreenWidthChosen, this, &LiveDock::ScreenWidthChosen);
  setWidget(panel_);
}

void LiveDock::showEvent(QShowEvent* event) {
  QDockWidget::showEvent(event);
  if (panel_ == nullptr) QTimer::singleShot(0, this, &LiveDock::Fill);
  Q_EMIT PlaceChanged();
}

void LiveDock::hideEvent(QHideEvent* event) {
  QDockWidget::hideEvent(event);
  Q_EMIT PlaceChanged();
}

void LiveDock::resizeEvent(QResizeEvent* event) {
  QDockWidget::resizeEvent(event);
  Q_EMIT PlaceChanged();
}

void LiveDock::moveEvent(QMoveEvent* event) {
  QDockWidget::moveEvent(event);
  Q_EMIT PlaceChanged();
}

}  // namespace plenovia
