// A line of text that never asks for room.
#pragma once

#include <QString>
#include <QWidget>

namespace plenovia {

// Shows what fits of its text; when that is not all, the tool tip shows the whole of it.
class ElidedLabel : public QWidget {
  Q_OBJECT

 public:
  using QWidget::QWidget;

  void SetText(const QString& text);
  const QString& text() const { return text_; }

  QSize sizeHint() const override;

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  QString Shown() const;

  QString text_;
};

}  // namespace plenovia
