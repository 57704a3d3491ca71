// The lines of the meter.
#pragma once

#include <QLabel>
#include <QWidget>
#include <array>
#include <memory>

#include "live/ui/live_scene.h"

namespace plenovia {

class MeterLines : public QWidget {
  Q_OBJECT

 public:
  explicit MeterLines(QWidget* parent);

  void Show(const LiveMeter& meter);

 Q_SIGNALS:
  // The user wants to tell how large the screen is.
  void ScreenSizeAsked();

 private:
  std::array<QLabel*, 5> lines_;
};

}  // namespace plenovia
