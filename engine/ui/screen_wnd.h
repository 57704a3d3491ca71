// A picture on the whole screen.
#pragma once

#include <QWidget>
#include <memory>

#include "platform/indexed_image.h"

namespace plenovia {

// Covers the screen of `owner` with black and shows the picture at its own size in the middle, or
// from the top left corner where it is larger. Releasing a key that was pressed here, or the left
// mouse button, closes it; then it deletes itself.
class TScreenWnd : public QWidget {
  Q_OBJECT

 public:
  // `picture` may be null: then all is black.
  TScreenWnd(QWidget* owner, std::shared_ptr<const IndexedImage> picture);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  std::shared_ptr<const IndexedImage> picture_;
  bool keyPressed_ = false;
};

}  // namespace plenovia
