// The small box that names the button under the mouse.
#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>
#include <QString>
#include <QTimer>
#include <QWidget>
#include <functional>

namespace plenovia {

// The box's place in its window, for a mouse at `cursor`: to the right of and below it, moved left
// and up so as not to pass the window's right and bottom edges. `cursor` and `window` count from
// the screen's corner, the answer from the window's.
QRect HintPlace(QPoint cursor, QSize text, const QRect& window);

// Comes up when the mouse has rested on a button for a quarter of a second, goes after one and a
// half. Never in the way of the mouse.
class PopupHint : public QWidget {
  Q_OBJECT

 public:
  using TextOfCommand = std::function<QString(int command)>;

  static constexpr int kNoCommand = -1;

  // A child of `frame`. Commands whose text is shorter than two characters have no hint.
  PopupHint(QWidget* frame, TextOfCommand text);

  // What the frame does when a bar reports the command under the mouse; below 1: none.
  void Report(int command);

  // Begins the delay before the command's hint. While a delay runs, completes it: the command's
  // hint comes at once, or none when the command is below 1. For the current command, or one
  // below 1, with no delay running: hides the hint.
  void Show(int command);
  // Hides the hint, or cancels its delay; the command stays the current one.
  void Hide();
  // Whether a hint shows or is about to.
  bool IsShown() const { return shown_; }
  // The command whose hint came last or is about to come.
  int CurrentId() const { return current_; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void Complete(int command);

  TextOfCommand text_;
  QTimer delay_;
  QTimer display_;
  bool shown_ = false;
  bool pending_ = false;
  int current_ = kNoCommand;
};

}  // namespace plenovia
