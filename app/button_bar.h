// A bar of picture buttons along an edge of the main frame.
#pragma once

#include <QAction>
#include <QActionGroup>
#include <QPixmap>
#include <QToolBar>
#include <QToolButton>

namespace plenovia {

class BarButton;

// Stands where the frame puts it, in a row or a column; the user cannot drag it. Each time that the
// mouse moves over the bar, is pressed on it or leaves it, the frame gets WM_BUTTONHINT with the
// command of the button under the mouse, also of a disabled one; below 1 when there is none, or
// while the mouse presses.
class ButtonBar : public QToolBar {
  Q_OBJECT

 public:
  // `pictureSize` is the side of the buttons' pictures in logical pixels.
  ButtonBar(QWidget* frame, int pictureSize);

  // The action stays its owner's. Its data is the command number, its status tip the hint.
  void AddCommand(QAction* action);
  // A button of which one in the bar at most is pressed. Makes the action checkable.
  void AddExclusive(QAction* action);
  // Empty space of `size` pixels.
  void AddSeparator(int size);

  // Shows the exclusive button pressed and the others released, without giving the command.
  // Nothing happens for other numbers.
  void PressButton(int command);
  // The face of a button instead of its command's picture.
  void SetFace(int command, const QPixmap& face);
  // The button, named "button<command>"; null when the bar has none for this command.
  QToolButton* FindButton(int command) const;

 Q_SIGNALS:
  // The mouse entered a button with this hint; empty: it left the button.
  void HintChanged(const QString& hint);

 protected:
  bool event(QEvent* event) override;
  void changeEvent(QEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;

 private:
  BarButton* Find(int command) const;
  void Report(int command);

  QWidget* frame_;
  int pictureSize_;
  QActionGroup* exclusive_;
  bool pressing_ = false;  // a button took the last press of the left mouse button
};

}  // namespace plenovia
