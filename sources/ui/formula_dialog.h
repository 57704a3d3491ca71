// The "Formula" dialog.
#pragma once

#include <QComboBox>
#include <QDialog>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>

#include "sources/formula.h"

namespace plenovia {

// Lets the user write a formula or take an example. What is wrong with it stands under the field
// while it is typed, and a preview shows its depth, near bright. OK takes only a formula that has
// values.
class FormulaDialog : public QDialog {
  Q_OBJECT

 public:
  FormulaDialog(QWidget* parent, const Formula& formula);

  Formula Chosen() const;

  void accept() override;

 private:
  void TakeExample(int number);
  void Changed();
  void Preview();
  void Say(const QString& wrong);

  QComboBox* examples_;
  QLineEdit* text_;
  QDoubleSpinBox* reach_;
  QLabel* note_;
  QLabel* preview_;
  QPushButton* ok_;
  QTimer previewSoon_;
};

}  // namespace plenovia
