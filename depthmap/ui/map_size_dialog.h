// Asks for the size of a depth map.
#pragma once

#include <QDialog>
#include <QSize>
#include <QSpinBox>

namespace plenovia {

class MapSizeDialog : public QDialog {
  Q_OBJECT

 public:
  MapSizeDialog(QWidget* parent, const QSize& size);
  QSize Chosen() const { return {width_->value(), height_->value()}; }

 private:
  QSpinBox* width_;
  QSpinBox* height_;
};

}  // namespace plenovia
