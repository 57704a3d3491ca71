// The dialog in which the user types or steps the level for new depth objects.
#pragma once

#include <QDialog>
#include <QLineEdit>
#include <cstdint>

namespace plenovia {

class TLevelDialog : public QDialog {
  Q_OBJECT

 public:
  // `target` is the level shown at first, and takes the new one when the dialog is accepted. It is
  // borrowed.
  TLevelDialog(QWidget* owner, std::int32_t& target);

  // Accepts only levels; tells the user about others.
  void accept() override;

 private:
  void ShowLevel();
  std::int32_t ReadLevel() const;
  void StepUp();
  void StepDown();

  std::int32_t value_;
  std::int32_t& target_;
  QLineEdit* edit_;
};

}  // namespace plenovia
