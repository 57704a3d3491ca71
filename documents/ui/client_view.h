// The inside of a document window.
#pragma once

#include <QAbstractScrollArea>

#include "documents/ui/mouse_wnd.h"

namespace plenovia {

// Hands what happens in it to its window.
class TMouseWnd::ClientView : public QAbstractScrollArea {
 public:
  explicit ClientView(TMouseWnd& window);

  // In the display's pixels.
  void SetScrollExtent(const QSize& extent);
  // `client`, in Qt's units, with the bars that it needs where there is only this room.
  QSize WithBars(QSize client, const QSize& room) const;

  // The window's own frame decides.
  QSize minimumSizeHint() const override { return {}; }

 protected:
  bool viewportEvent(QEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;

 private:
  bool MouseEvent(const QMouseEvent& event);
  void PaintClient(const QRect& exposed);
  void UpdateRanges();

  TMouseWnd& window_;
  QSize extent_;
};

}  // namespace plenovia
