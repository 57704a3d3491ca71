#include "live/ui/reset_slider.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QSignalBlocker>

namespace plenovia {

ResetSlider::ResetSlider(QWidget* parent, int least, int most, const QString& unit)
    : QWidget(parent), slider_(new QSlider(Qt::Horizontal)), number_(new QLabel), unit_(unit) {
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins({});
  row->addWidget(slider_);
  row->addWidget(number_);
  slider_->setRange(least, most);
  slider_->installEventFilter(this);
  number_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  number_->setMinimumWidth(
      fontMetrics().horizontalAdvance(QString::number(most) + QStringLiteral("0 ") + unit));
  setFocusProxy(slider_);
  connect(slider_, &QSlider::valueChanged, this, [this](int value) {
    ShowNumber();
    Q_EMIT Chosen(value);
  });
  ShowNumber();
}

void ResetSlider::SetValue(int value) {
  const QSignalBlocker quiet(slider_);
  slider_->setValue(value);
  ShowNumber();
}

void ResetSlider::ShowNumber() {
  number_->setText(QStringLiteral("%1 %2").arg(slider_->value()).arg(unit_));
}

bool ResetSlider::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::MouseButtonDblClick) {
    Q_EMIT ResetAsked();
    return true;
  }
  return QWidget::eventFilter(watched, event);
}

}  // namespace plenovia
