// The picture of Live View.
#pragma once

#include <QBasicTimer>
#include <QImage>
#include <QPoint>
#include <QSize>
#include <QWidget>
#include <memory>

#include "live/ui/live_scene.h"
#include "platform/ui/shown_picture.h"

namespace plenovia {

// Shows pictures dot for dot, in the middle. What is larger is dragged with the left mouse button
// or, where that means something else, with the right one.
class LivePane : public QWidget {
  Q_OBJECT

 public:
  explicit LivePane(QWidget* parent);

  void Show(const std::shared_ptr<const LivePicture>& picture);
  // A figure is moved with the left button and turned with Shift and the wheel.
  void SetShowsFigure(bool shows) { showsFigure_ = shows; }
  // What is on the screen, without its surroundings, at scale 1 of the display.
  QImage Shown() const;
  QSize sizeHint() const override { return {360, 300}; }
  QSize minimumSizeHint() const override { return {160, 180}; }

 Q_SIGNALS:
  void Resized(const QSize& pixels);
  // The mouse went so far, in pixels, with the left button; or the wheel so many notches.
  void ReliefTurned(const QPoint& way);
  void ReliefZoomed(double notches);
  void ReliefReset();
  void FigureMoved(const QPoint& way);
  void FigureTurned(double notches);
  void FigureReset();
  void Painted();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void timerEvent(QTimerEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  QSize PictureSize() const;
  QPoint Corner() const;
  bool ShowsDots() const;
  void Scroll(const QPoint& way);
  void UpdateCursor();
  void UpdateTurns();

  std::shared_ptr<const LivePicture> picture_;
  QImage first_;  // over the picture's memory
  QImage second_;
  ShownPicture shown_;
  QPoint scroll_;
  QPoint last_;
  bool showsFigure_ = false;
  bool showsSecond_ = false;
  QBasicTimer turns_;
};

}  // namespace plenovia
