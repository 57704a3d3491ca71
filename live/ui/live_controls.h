// The controls of Live View: edits of the one record of parameters.
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QToolButton>
#include <QWidget>
#include <memory>

#include "live/ui/live_scene.h"
#include "live/ui/pattern_strip.h"
#include "live/ui/range_slider.h"
#include "live/ui/reset_slider.h"

namespace plenovia {

class LiveModel;

class LiveControls : public QWidget {
  Q_OBJECT

 public:
  // `model` outlives it.
  LiveControls(QWidget* parent, LiveModel& model);

  void ShowHistogram(const std::shared_ptr<const LevelHistogram>& histogram);
  // The range that a run used.
  void ShowRange(const FittedRange& range);

 private:
  void ShowRecord();
  void ChooseRange(std::int32_t low, std::int32_t high);
  void FitRange();
  void Exchange();
  void ResetRange();

  LiveModel& model_;
  std::shared_ptr<const LevelHistogram> histogram_;
  LevelRange used_{0, 63};
  QLabel* rangeText_;
  RangeSlider* range_;
  QCheckBox* fitWhenNeeded_;
  QToolButton* exchange_;
  ResetSlider* gap_;
  QComboBox* scan_;
  QComboBox* depthBy_;
  QCheckBox* markers_;
  PatternStrip* patterns_;
};

}  // namespace plenovia
