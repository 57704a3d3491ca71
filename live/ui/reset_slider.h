// A slider with its number and unit.
#pragma once

#include <QLabel>
#include <QSlider>
#include <QWidget>

namespace plenovia {

// Tells of every change that the user makes; a double click asks for a reset.
class ResetSlider : public QWidget {
  Q_OBJECT

 public:
  ResetSlider(QWidget* parent, int least, int most, const QString& unit);

  // Tells nobody.
  void SetValue(int value);
  int Value() const { return slider_->value(); }
  QSlider& Slider() { return *slider_; }

 Q_SIGNALS:
  void Chosen(int value);
  void ResetAsked();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void ShowNumber();

  QSlider* slider_;
  QLabel* number_;
  QString unit_;
};

}  // namespace plenovia
