// A slider with two handles over a histogram.
#pragma once

#include <QWidget>
#include <cstdint>
#include <memory>

#include "engine/scan_method.h"
#include "viewing/level_histogram.h"

namespace plenovia {

// Chooses a depth range. The axis holds the range and the levels, with room to drag beyond them; it
// stays as it is during a drag. The arrow keys move the upper handle, with Shift the lower one.
// Double click asks for a reset.
class RangeSlider : public QWidget {
  Q_OBJECT

 public:
  explicit RangeSlider(QWidget* parent);

  void SetHistogram(const std::shared_ptr<const LevelHistogram>& histogram);
  // The range as set, either way round, and the one that is used, which is marked where it differs.
  void SetRange(std::int32_t zmin, std::int32_t zmax, LevelRange used);
  // Where the handles are, and what the axis shows.
  int HandlePlace(bool upper) const;
  const LevelRange& Axis() const { return axis_; }

  QSize sizeHint() const override { return {200, 64}; }
  QSize minimumSizeHint() const override { return {120, 56}; }

 Q_SIGNALS:
  void RangeChosen(std::int32_t low, std::int32_t high);
  void ResetAsked();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  enum class Grip { kNone, kLow, kHigh, kBoth };
  QRect Plot() const;
  int PlaceOf(std::int64_t level) const;
  std::int64_t LevelAt(int x) const;
  void UpdateAxis();
  void Choose(std::int64_t low, std::int64_t high);
  void PaintHistogram(QPainter& painter) const;

  std::shared_ptr<const LevelHistogram> histogram_;
  LevelRange range_{0, 63};
  LevelRange used_{0, 63};
  LevelRange axis_{0, 79};
  bool exchanged_ = false;
  Grip grip_ = Grip::kNone;
  std::int64_t gripLevel_ = 0;  // of the mouse when the whole range was gripped
  LevelRange gripRange_;
};

}  // namespace plenovia
