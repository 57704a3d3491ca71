#include "depthmap/ui/mouse_wnd.h"

#include <QScrollBar>
#include <QStyle>
#include <algorithm>

#include "depthmap/ui/client_view.h"
#include "platform/ui/message_box.h"
#include "platform/ui/picture_painting.h"
#include "platform/ui/private_message.h"
#include "platform/ui/resource_pictures.h"

namespace plenovia {

namespace {

constexpr Qt::KeyboardModifiers kShiftOrControl = Qt::ShiftModifier | Qt::ControlModifier;

bool OnlyButton(const MouseKeys& keys, Qt::MouseButton button) {
  return keys.buttons == button && !(keys.modifiers & kShiftOrControl);
}

}  // namespace

QRect TrackRect::Normalised() const {
  const QPoint corner(std::min(anchor.x(), moving.x()), std::min(anchor.y(), moving.y()));
  return {corner, QSize(std::abs(moving.x() - anchor.x()), std::abs(moving.y() - anchor.y()))};
}

TMouseWnd::TMouseWnd(QMdiArea* client, const QString& title, QWidget* frame)
    : frame_(frame), view_(new ClientView(*this)) {
  setAttribute(Qt::WA_DeleteOnClose);
  setWindowTitle(title);
  setWidget(view_);
  client->addSubWindow(this);
  activation_ =
      connect(client, &QMdiArea::subWindowActivated, this, [this, client](QMdiSubWindow* window) {
        // No window is told when the program goes to the background: then the current one stays.
        const QMdiSubWindow* current = window != nullptr ? window : client->currentSubWindow();
        if (active_ == (current == this)) return;
        active_ = !active_;
        EvMDIActivate(active_);
      });
}

TMouseWnd::~TMouseWnd() {
  // The area makes another window the active one while this one is half gone.
  disconnect(activation_);
}

QSize TMouseWnd::ClientSize() const {
  return DevicePixels(*view_->viewport());
}

void TMouseWnd::SetClientSize(const QSize& size) {
  wantedClient_ = size;
  TakeWantedSize();
}

void TMouseWnd::SetWindowSize(const QSize& size) {
  wantedClient_.reset();
  resize(LogicalArea(QRect(QPoint(), size)).size());
}

void TMouseWnd::TakeWantedSize() {
  if (!wantedClient_ || !isVisible() || isMaximized() || isMinimized()) return;
  const QSize logical = LogicalArea(QRect(QPoint(), *wantedClient_)).size();
  wantedClient_.reset();
  // In a window too small for its own frame the view has no size to reckon with, only after the
  // first step.
  for (int step = 0; step < 2; ++step) resize(size() + logical - view_->size());
}

void TMouseWnd::EvLButtonDblClk(MouseKeys keys, QPoint point) {
  OnLButtonDblClk(keys, point);
}

void TMouseWnd::EvLButtonDown(MouseKeys keys, QPoint point) {
  tracking_ = {point, point};
  buttonDownPoint_ = point;
  lastPoint_ = point;
  leftDown_ = true;
  OnLButtonDown(keys, point);
}

void TMouseWnd::EvLButtonUp(MouseKeys keys, QPoint point) {
  if (!leftDown_) return;
  UpdateTrack(point.x(), point.y());
  OnLButtonUp(keys, point);
  EndLeftTrack();
}

void TMouseWnd::EvRButtonDown(MouseKeys keys, QPoint point) {
  rightDown_ = true;
  buttonDownPoint_ = point;
  OnRButtonDown(keys, point);
}

void TMouseWnd::EvRButtonUp(MouseKeys keys, QPoint point) {
  if (!rightDown_) return;
  OnRButtonUp(keys, point);
  EndRightTrack();
}

void TMouseWnd::MouseMoved(MouseKeys keys, QPoint point) {
  if (!leftDown_ && !rightDown_) {
    HoverMove(point.x(), point.y());
  } else if (OnlyButton(keys, Qt::LeftButton)) {
    leftDragged_ = true;
    LeftDrag(point.x(), point.y());
  } else if (OnlyButton(keys, Qt::RightButton)) {
    rightDragged_ = true;
    RightDrag(point.x(), point.y());
  }
}

void TMouseWnd::LeftDrag(int x, int y) {
  UpdateTrack(x, y);
}
void TMouseWnd::RightDrag(int x, int y) {
  UpdateTrack(x, y);
}
void TMouseWnd::HoverMove(int x, int y) {
  SetLastPoint(x, y);
}

void TMouseWnd::EndLeftTrack() {
  leftDown_ = false;
  leftDragged_ = false;
}

void TMouseWnd::EndRightTrack() {
  rightDown_ = false;
  rightDragged_ = false;
}

void TMouseWnd::UpdateTrack(int x, int y) {
  tracking_.moving = {x, y};
}

void TMouseWnd::SetCursorId(int id) {
  if (id == cursorId_) return;
  cursorId_ = id;
  view_->viewport()->setCursor(CursorById(id, devicePixelRatioF()));
}

QRect TMouseWnd::LogicalArea(const QRect& client) const {
  const qreal scale = devicePixelRatioF();
  return QRectF(QPointF(client.topLeft()) / scale, QSizeF(client.size()) / scale).toAlignedRect();
}

void TMouseWnd::Invalidate(const QRect& area) {
  view_->viewport()->update(LogicalArea(area));
}

void TMouseWnd::InvalidateAll() {
  view_->viewport()->update();
}

void TMouseWnd::RepaintNow(const QRect& area) {
  view_->viewport()->repaint(LogicalArea(area));
}

void TMouseWnd::SetScrollExtent(const QSize& extent) {
  view_->SetScrollExtent(extent);
}

QPoint TMouseWnd::ScrollPosition() const {
  return {view_->horizontalScrollBar()->value(), view_->verticalScrollBar()->value()};
}

void TMouseWnd::showEvent(QShowEvent* event) {
  QMdiSubWindow::showEvent(event);
  TakeWantedSize();
}

void TMouseWnd::changeEvent(QEvent* event) {
  QMdiSubWindow::changeEvent(event);
  // The window has its new size only after this event.
  if (event->type() != QEvent::WindowStateChange) return;
  QMetaObject::invokeMethod(this, &TMouseWnd::TakeWantedSize, Qt::QueuedConnection);
}

bool TMouseWnd::CanClose() {
  if (NeedsSaving()) {
    const QPointer<TMouseWnd> self(this);
    const Answer answer = AskYesNoCancel(
        window(), tr("Save\r %s\r before closing?").replace(QStringLiteral("%s"), windowTitle()),
        tr("Confirm"));
    if (!self || answer == Answer::kCancel) return false;
    if (answer == Answer::kYes) {
      SendPrivateMessage(frame_, PrivateMessage(WM_SAVECHILD, this));
      if (!self || NeedsSaving()) return false;
    }
  }
  PostPrivateMessage(frame_, WM_UPDATESTATUS);
  return true;
}

void TMouseWnd::CloseUnasked() {
  asksToClose_ = false;
  close();
}

void TMouseWnd::closeEvent(QCloseEvent* event) {
  if (!asksToClose_ || CanClose()) {
    QMdiSubWindow::closeEvent(event);
  } else {
    event->ignore();
  }
}

}  // namespace plenovia
