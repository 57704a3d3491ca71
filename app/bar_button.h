// One picture button of a button bar.
#pragma once

#include <QAction>
#include <QPixmap>
#include <QToolButton>

namespace plenovia {

// Follows its command's action: enabled, pressed, triggered by a click. Shows the command's
// picture, grayed while disabled, with a border of 2 pixels on each side; the command's number when
// there is no picture. Has no tool tip. Mouse moves and presses reach the bar too.
class BarButton : public QToolButton {
  Q_OBJECT

 public:
  // The action's data is the command number.
  BarButton(QAction* action, int pictureSize, QWidget* bar);

  int command() const { return command_; }
  // Replaces the command's picture; shown in its own size, a pixel of it a pixel of the display.
  void SetFace(const QPixmap& face);

  QSize sizeHint() const override;

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  // The command's picture, drawn for the display's scale factor.
  QPixmap Picture();

  int command_;
  int pictureSize_;
  QPixmap picture_;
  QPixmap face_;
};

}  // namespace plenovia
