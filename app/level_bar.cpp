#include "app/level_bar.h"

#include <algorithm>

#include "app/busy_state.h"
#include "app/desk.h"
#include "app/status_bar.h"
#include "depthmap/ui/level_panel.h"

namespace plenovia {

LevelBar::LevelBar(QWidget* frame, Desk& desk, const BusyState& busy, TCStatusBar& status)
    : QToolBar(frame), desk_(desk), busy_(busy), status_(status), panel_(new LevelPanel) {
  setObjectName(QStringLiteral("levelBar"));
  setWindowTitle(tr("Level"));
  setMovable(false);
  setContextMenuPolicy(Qt::PreventContextMenu);
  addWidget(panel_);
  connect(&desk, &Desk::StateChanged, this, &LevelBar::Follow);
}

void LevelBar::ShowWithMaps() {
  const auto windows = desk_.Area().subWindowList();
  const bool shown = std::ranges::any_of(windows, [](const QMdiSubWindow* window) {
    return !window->isHidden() && qobject_cast<const TMapWindow*>(window) != nullptr;
  });
  if (shown == !isHidden()) return;
  setVisible(shown);
  desk_.FitDocuments();
}

void LevelBar::Follow() {
  ShowWithMaps();
  auto* map = qobject_cast<TMapWindow*>(desk_.Active());
  if (map != map_) {
    if (map_) disconnect(map_, &TMapWindow::Told, this, nullptr);
    map_ = map;
    if (map != nullptr) {
      connect(map, &TMapWindow::Told, this, [this](const QString& text) {
        if (!busy_.IsBusy()) status_.SetMessage(text);
      });
    }
    panel_->SetMap(map);
  }
  panel_->Refresh();
}

}  // namespace plenovia
