// The start-up picture.
#pragma once

#include <QPixmap>
#include <QRect>
#include <QWidget>

namespace plenovia {

// A bordered window without a title bar, one pixel larger than its picture on each side, centred
// on an area of the screen.
class TWelcome : public QWidget {
  Q_OBJECT

 public:
  // `picture` is a resource. `units` of 2 seconds is how long CloseAfterDelay() keeps it open.
  TWelcome(const QString& title, const QString& picture, int units, const QRect& area);

  // Shows the window and paints it at once.
  void ShowNow();
  // Waits until the time is over that began with this call, then closes the window.
  void CloseAfterDelay();

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QPixmap picture_;
  int delay_;  // milliseconds
};

}  // namespace plenovia
