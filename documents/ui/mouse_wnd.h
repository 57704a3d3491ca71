// The common base of all document windows: turns mouse events into clicks, drags and moves.
#pragma once

#include <QKeyEvent>
#include <QMdiArea>
#include <QMouseEvent>
#include <QPainter>
#include <QShowEvent>
#include <QString>
#include <QVBoxLayout>
#include <optional>

#include "documents/ui/document.h"

namespace plenovia {

class NoticeBar;

// The buttons and modifier keys that are held at a mouse event.
struct MouseKeys {
  Qt::MouseButtons buttons;
  Qt::KeyboardModifiers modifiers;
};

// From where a drag began to where it is, not normalised.
struct TrackRect {
  QPoint anchor;
  QPoint moving;
  QRect Normalised() const;  // the greater column and row excluded
  bool IsEmpty() const { return anchor.x() == moving.x() || anchor.y() == moving.y(); }
};

// The client area is what lies inside of the window's frame and scroll bars. It counts in the
// display's own pixels from its top left corner, at each scale factor.
class TMouseWnd : public Document {
  Q_OBJECT

 public:
  // A hidden window in the document area `client`. `frame` receives its private messages.
  TMouseWnd(QMdiArea* client, const QString& title, QWidget* frame);

  void ShowBusy(bool busy) override;
  // The window grows by the notice and shrinks when it goes, so that the client area stays as it
  // is. A maximised window gives the notice some of its client area.
  void ShowNotice(const Notice& notice) override;
  void HideNotice();

  // Changes of the window's size keep its top left corner, but the window becomes no larger than
  // the visible part of the document area, in which it then lies, and keeps a title that can be
  // held and closed. The inside of a window that is hidden, minimised or maximised takes its size
  // when the window is shown as it normally is.
  QSize ClientSize() const;
  void SetClientSize(const QSize& size);
  void SetWindowSize(const QSize& size);

 protected:
  // Draws all of the client area that lies in `exposed`.
  virtual void Paint(QPainter& painter, const QRect& exposed) = 0;
  // The window's colour.
  QBrush Ground() const;
  // The client area changed its size.
  virtual void ClientResized() {}
  // The point that the operations below get for a point of the client area.
  virtual QPoint TrackingPoint(const QPoint& client) const { return client; }

  // The wheel was turned with Ctrl held: `steps` larger, or smaller when below 0. What is seen at
  // this point of the client area stays there.
  virtual void ZoomAbout(const QPoint& /*client*/, int /*steps*/) {}

  virtual void EvLButtonDblClk(MouseKeys keys, QPoint point);
  virtual void EvLButtonDown(MouseKeys keys, QPoint point);
  virtual void EvLButtonUp(MouseKeys keys, QPoint point);
  virtual void EvRButtonDown(MouseKeys keys, QPoint point);
  virtual void EvRButtonUp(MouseKeys keys, QPoint point);
  // Moves with only the left, only the right, or no button that went down in this window. Moves
  // with Shift or Ctrl held are neither.
  virtual void LeftDrag(int x, int y);
  virtual void RightDrag(int x, int y);
  virtual void HoverMove(int x, int y);
  virtual void OnLButtonDblClk(MouseKeys, QPoint) {}
  virtual void OnLButtonDown(MouseKeys, QPoint) {}
  virtual void OnLButtonUp(MouseKeys, QPoint) {}
  virtual void OnRButtonDown(MouseKeys, QPoint) {}
  virtual void OnRButtonUp(MouseKeys, QPoint) {}
  // The window does not hear of the left button's release: a dialog opens, or the next mouse event
  // shows that a menu has taken it. EndLeftTrack() follows.
  virtual void OnLeftTrackLost() {}
  virtual void EndLeftTrack();
  virtual void EndRightTrack();
  virtual void UpdateTrack(int x, int y);
  virtual void SetCursorId(int id);
  // Shows another cursor than that of SetCursorId(), until it is called again.
  void ShowCursor(Qt::CursorShape shape);
  // Every move of the mouse; those above come from here.
  virtual void MouseMoved(MouseKeys keys, QPoint point);
  // Whether the key is the window's own. Other keys scroll, or go to the menus.
  virtual bool KeyPressed(const QKeyEvent& /*event*/) { return false; }

  void SetLastPoint(int x, int y) { lastPoint_ = {x, y}; }
  const TrackRect& Tracking() const { return tracking_; }
  void SetTracking(const TrackRect& track) { tracking_ = track; }
  QPoint ButtonDownPoint() const { return buttonDownPoint_; }
  QPoint LastPoint() const { return lastPoint_; }
  bool LeftDown() const { return leftDown_; }
  bool LeftDragged() const { return leftDragged_; }
  bool RightDragged() const { return rightDragged_; }

  // As SetWindowSize, in Qt's units.
  void SetOuterSize(const QSize& size);
  // Repaint when the events are handled, or at once.
  void Invalidate(const QRect& area);
  void InvalidateAll();
  void RepaintNow(const QRect& area);
  // Bars at the right and bottom with these ranges, from 0 to what of `extent` does not fit the
  // client area. Without a call there are none.
  void SetScrollExtent(const QSize& extent);
  QPoint ScrollPosition() const;
  // The client area as it is without bars.
  QSize RoomWithoutBars() const;
  // As far as the bars reach.
  void ScrollTo(const QPoint& position);

  void showEvent(QShowEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  class ClientView;
  friend class ClientView;

  bool HasNormalSize() const;
  void TakeWantedSize();
  void EndLostTracks(Qt::MouseButtons held);
  QRect LogicalArea(const QRect& client) const;

  ClientView* view_;
  QVBoxLayout* rows_;  // the notice and the view
  NoticeBar* notice_ = nullptr;
  QSize noticeRoom_{0, 0};  // by which the window grew for it
  int cursorId_ = 0;
  std::optional<QSize> wantedClient_;
  TrackRect tracking_;
  QPoint buttonDownPoint_;
  QPoint lastPoint_;
  bool leftDown_ = false;
  bool leftDragged_ = false;
  bool rightDown_ = false;
  bool rightDragged_ = false;
};

}  // namespace plenovia
