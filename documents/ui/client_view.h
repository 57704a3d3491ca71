// The inside of a document window.
#pragma once

#include <QAbstractScrollArea>
#include <QWheelEvent>

#include "documents/ui/mouse_wnd.h"

namespace plenovia {

// Hands what happens in it to its window.
class TMouseWnd::ClientView : public QAbstractScrollArea {
 public:
  explicit ClientView(TMouseWnd& window);

  // In the display's pixels.
  void SetScrollExtent(const QSize& extent);
  // Inside, in the display's pixels, when there are no bars.
  QSize Room() const;
  // `client`, in Qt's units, with the bars that it needs where there is only this room.
  QSize WithBars(QSize client, const QSize& room) const;

  // The window's own frame decides.
  QSize minimumSizeHint() const override { return {}; }

 protected:
  bool event(QEvent* event) override;
  bool viewportEvent(QEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;

 private:
  bool MouseEvent(const QMouseEvent& event);
  bool WheelEvent(QWheelEvent& event);
  void PaintClient(const QRect& exposed);
  void UpdateRanges();

  TMouseWnd& window_;
  QSize extent_;
  int wheelAngle_ = 0;  // turned with Ctrl held and not yet a whole step
};

}  // namespace plenovia
