// Asks for a text to put into a depth map, and shows it.
#pragma once

#include <QCheckBox>
#include <QDialog>
#include <QFontComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>

#include "depthmap/ui/text_shapes.h"

namespace plenovia {

class TextDialog : public QDialog {
  Q_OBJECT

 public:
  // Begins with `style`.
  TextDialog(QWidget* parent, const TextStyle& style);
  TextStyle Style() const;

 private:
  void ShowPreview();

  QLineEdit* text_;
  QFontComboBox* family_;
  QSpinBox* size_;
  QSpinBox* spacing_;
  QCheckBox* bold_;
  QLabel* preview_;
  QLabel* facts_;
  QPushButton* ok_;
};

}  // namespace plenovia
