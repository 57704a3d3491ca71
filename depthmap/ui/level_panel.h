// The level at hand, beside the tools palette.
#pragma once

#include <QLabel>
#include <QPointer>
#include <QSlider>
#include <QSpinBox>
#include <QWidget>

#include "depthmap/ui/map_window.h"

namespace plenovia {

// Shows the level of what is selected in a map or, when nothing is, that of the next shape, as a
// number and on a scale of grays, and sets it. Grayed without a map.
class LevelPanel : public QWidget {
  Q_OBJECT

 public:
  explicit LevelPanel(QWidget* parent = nullptr);

  // The map that it is about, or null.
  void SetMap(TMapWindow* map);
  // Shows the map's level as it is now.
  void Refresh();

 private:
  void SetLevel(int level);
  void EndSlide();

  QPointer<TMapWindow> map_;
  QLabel* whose_;
  QSpinBox* number_;
  QSlider* slider_;
  QLabel* others_;  // the levels of the ground and of the next shape
  bool sliding_ = false;
};

}  // namespace plenovia
