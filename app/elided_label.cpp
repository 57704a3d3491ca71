#include "app/elided_label.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

namespace plenovia {

void ElidedLabel::SetText(const QString& text) {
  if (text == text_) return;
  text_ = text;
  update();
}

QSize ElidedLabel::sizeHint() const {
  return {0, fontMetrics().height()};
}

QString ElidedLabel::Shown() const {
  return fontMetrics().elidedText(text_, Qt::ElideRight, width());
}

bool ElidedLabel::event(QEvent* event) {
  if (event->type() == QEvent::ToolTip && Shown() != text_) {
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), text_, this);
    return true;
  }
  return QWidget::event(event);
}

void ElidedLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setPen(palette().color(foregroundRole()));
  painter.drawText(rect(), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, Shown());
}

}  // namespace plenovia
