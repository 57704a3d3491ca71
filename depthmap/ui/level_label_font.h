// Level labels in a font of the platform's.
#pragma once

#include <QFont>
#include <QWidget>
#include <map>

#include "depthmap/level_labels.h"

namespace plenovia {

// Labels in the widget's font at 8 points, for the display that the widget is on when this is made.
// Where they are larger than on a display of 96 dots an inch, they stand further from the corner of
// their object. Each is drawn once.
class LevelLabelFont final : public LevelLabels {
 public:
  explicit LevelLabelFont(const QWidget& widget);

  // Whether the widget's display still wants labels of this size.
  bool Fits(const QWidget& widget) const;

  const LevelLabel& Label(std::int32_t level) override;

 private:
  QFont font_;
  std::map<std::int32_t, LevelLabel> labels_;
};

}  // namespace plenovia
