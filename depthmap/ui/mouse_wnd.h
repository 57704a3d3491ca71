// The common base of all document windows: a child of the main frame's document area that turns
// mouse events into clicks, drags and moves.
#pragma once

#include <QCloseEvent>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMetaObject>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QShowEvent>
#include <QString>
#include <optional>

namespace plenovia {

enum WindowKind { kPictureWindow = 1, kDepthMapWindow = 2, kColourTableWindow = 3 };

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
// display's own pixels from its top left corner, whatever the display's scale factor.
//
// The window deletes itself when it is closed.
class TMouseWnd : public QMdiSubWindow {
  Q_OBJECT

 public:
  // A hidden window in the document area `client`. `frame` receives its private messages.
  TMouseWnd(QMdiArea* client, const QString& title, QWidget* frame);
  ~TMouseWnd() override;

  virtual int GetWindowKind() const { return kind_; }
  virtual void SetWindowKind(int kind) { kind_ = kind; }

  // Commands of the menu and the bars go to the active window first. A window is asked for
  // CommandEnabled() and RunCommand() only with commands that it handles.
  virtual bool HandlesCommand(int /*command*/) const { return false; }
  virtual bool CommandEnabled(int command) const { return HandlesCommand(command); }
  virtual void RunCommand(int /*command*/) {}

  // Whether there is work that closing would lose.
  virtual bool NeedsSaving() const { return false; }
  // Asked when the window shall close; false keeps it open. A window with work to save asks the
  // user, and has the frame save it on Yes; what could not be saved stays open. `this` may be gone
  // when it returns false.
  virtual bool CanClose();
  // Closes without asking.
  void CloseUnasked();

  // Changes of the window's size keep its top left corner. The inside of a window that is hidden,
  // minimised or maximised takes its size when the window is shown as it normally is.
  QSize ClientSize() const;
  void SetClientSize(const QSize& size);
  void SetWindowSize(const QSize& size);

 Q_SIGNALS:
  // What decides about commands may have changed: the saved flag, the zoom, the selection.
  void StateChanged();

 protected:
  // Draws what of the client area lies in `exposed`, on a ground in the window's colour.
  virtual void Paint(QPainter& painter, const QRect& exposed) = 0;
  // The client area changed its size.
  virtual void ClientResized() {}
  // Became, or is no longer, the active document window.
  virtual void EvMDIActivate(bool /*active*/) {}
  // The point that the operations below get for a point of the client area.
  virtual QPoint TrackingPoint(const QPoint& client) const { return client; }

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
  virtual void EndLeftTrack();
  virtual void EndRightTrack();
  virtual void UpdateTrack(int x, int y);
  virtual void SetCursorId(int id);

  void SetLastPoint(int x, int y) { lastPoint_ = {x, y}; }
  const TrackRect& Tracking() const { return tracking_; }
  void SetTracking(const TrackRect& track) { tracking_ = track; }
  QPoint ButtonDownPoint() const { return buttonDownPoint_; }
  QPoint LastPoint() const { return lastPoint_; }
  bool LeftDown() const { return leftDown_; }
  bool LeftDragged() const { return leftDragged_; }
  bool RightDragged() const { return rightDragged_; }

  QWidget* Frame() const { return frame_; }
  // Repaint when the events are handled, or at once.
  void Invalidate(const QRect& area);
  void InvalidateAll();
  void RepaintNow(const QRect& area);
  // Bars at the right and bottom with these ranges, from 0 to what of `extent` does not fit the
  // client area. Without a call there are none.
  void SetScrollExtent(const QSize& extent);
  QPoint ScrollPosition() const;

  void closeEvent(QCloseEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  class ClientView;
  friend class ClientView;

  void TakeWantedSize();
  void MouseMoved(MouseKeys keys, QPoint point);
  QRect LogicalArea(const QRect& client) const;

  QPointer<QWidget> frame_;
  ClientView* view_;
  int kind_ = 0;
  int cursorId_ = 0;
  bool asksToClose_ = true;
  std::optional<QSize> wantedClient_;
  QMetaObject::Connection activation_;
  bool active_ = false;
  TrackRect tracking_;
  QPoint buttonDownPoint_;
  QPoint lastPoint_;
  bool leftDown_ = false;
  bool leftDragged_ = false;
  bool rightDown_ = false;
  bool rightDragged_ = false;
};

}  // namespace plenovia
