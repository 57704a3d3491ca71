// The keys that give the level at hand.
#pragma once

#include <QKeyEvent>
#include <QObject>
#include <QTimer>

#include "depthmap/level_entry.h"

namespace plenovia {

class TMapWindow;

// "+" (or "=") and "-" step the level by one, with Shift by ten. Digits type it: it counts after a
// short pause, with Enter, or when the mouse is pressed.
class LevelKeys : public QObject {
  Q_OBJECT

 public:
  // Hears what happens in `view`. Belongs to the window.
  LevelKeys(TMapWindow& window, QWidget& view, QWidget& viewport);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool KeyPressed(const QKeyEvent& event);
  void Step(int by);
  void TakeTyped();

  TMapWindow& window_;
  LevelEntry entry_;
  QTimer pause_;
};

}  // namespace plenovia
