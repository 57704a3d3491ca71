// Asks how the selected shape is to be made into steps.
#pragma once

#include <QComboBox>
#include <QDialog>
#include <QSpinBox>

#include "depthmap/shape_steps.h"

namespace plenovia {

class StepsDialog : public QDialog {
  Q_OBJECT

 public:
  // `level` is the shape's.
  StepsDialog(QWidget* parent, std::int32_t level);
  StepPlan Plan() const;

 private:
  QComboBox* form_;
  QSpinBox* steps_;
  QSpinBox* from_;
  QSpinBox* to_;
};

}  // namespace plenovia
