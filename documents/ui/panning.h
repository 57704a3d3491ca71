// Moving what a window shows with the mouse.
#pragma once

#include <QAbstractScrollArea>
#include <QCursor>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QObject>
#include <QPoint>

namespace plenovia {

// A drag with the middle button, or with the left one while the space bar is held, scrolls the
// area. What is not part of it goes on to the area's own handlers.
class Panning : public QObject {
  Q_OBJECT

 public:
  // Belongs to `area`.
  explicit Panning(QAbstractScrollArea& area);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool CanPan() const;
  bool Key(const QKeyEvent& event, bool pressed);
  void HoldSpace(bool held);
  bool Mouse(const QMouseEvent& event);

  QAbstractScrollArea& area_;
  bool space_ = false;
  QCursor cursor_;                         // the viewport's own, while the space bar is held
  Qt::MouseButton button_ = Qt::NoButton;  // the drag's
  QPoint from_;                            // where the drag began, in pixels of the display
  QPoint scrolled_;                        // how far it was scrolled then
};

}  // namespace plenovia
