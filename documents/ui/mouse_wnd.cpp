#include "documents/ui/mouse_wnd.h"

#include <QApplication>
#include <QScrollBar>
#include <QStyle>
#include <algorithm>

#include "documents/ui/client_view.h"
#include "documents/ui/notice_bar.h"
#include "platform/ui/picture_painting.h"
#include "platform/ui/resource_pictures.h"

namespace plenovia {

namespace {

constexpr int kNoCursor = -1;
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
    : Document(client, title, frame), view_(new ClientView(*this)) {
  auto* inside = new QWidget;
  rows_ = new QVBoxLayout(inside);
  rows_->setContentsMargins({});
  rows_->setSpacing(0);
  rows_->addWidget(view_, 1);
  inside->setFocusProxy(view_);
  setWidget(inside);
}

void TMouseWnd::ShowNotice(const Notice& notice) {
  HideNotice();
  notice_ = new NoticeBar(notice);
  connect(notice_, &NoticeBar::Dismissed, this, &TMouseWnd::HideNotice);
  // First the room and then the notice, so that the view never shrinks. A window that waits for its
  // size reckons with the notice then.
  if (!wantedClient_ && HasNormalSize()) {
    const int width = std::max(view_->width(), notice_->minimumSizeHint().width());
    const QSize before = size();
    SetOuterSize(before + QSize(width - view_->width(), notice_->heightForWidth(width)));
    noticeRoom_ = size() - before;
  }
  rows_->insertWidget(0, notice_);
  notice_->show();
  rows_->activate();
}

void TMouseWnd::HideNotice() {
  if (notice_ == nullptr) return;
  if (notice_->isAncestorOf(QApplication::focusWidget())) view_->setFocus();
  rows_->removeWidget(notice_);
  notice_->hide();
  notice_->deleteLater();
  notice_ = nullptr;
  rows_->activate();
  if (HasNormalSize()) SetOuterSize(size() - noticeRoom_);
  noticeRoom_ = {0, 0};
}

bool TMouseWnd::HasNormalSize() const {
  return isVisible() && !isMaximized() && !isMinimized();
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
  SetOuterSize(LogicalArea(QRect({}, size)).size());
}

void TMouseWnd::SetOuterSize(const QSize& size) {
  const QSize least = size.expandedTo(minimumSizeHint());
  if (least != this->size()) PlaceAt({pos(), least});
}

void TMouseWnd::TakeWantedSize() {
  if (!wantedClient_ || !HasNormalSize()) return;
  const QSize logical = LogicalArea(QRect(QPoint(), *wantedClient_)).size();
  wantedClient_.reset();
  // In a window too small for its own frame the view has no size to reckon with, only after the
  // first step.
  for (int step = 0; step < 2; ++step) {
    const QSize around = size() - view_->size();
    SetOuterSize(view_->WithBars(logical, parentWidget()->size() - around) + around);
  }
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

void TMouseWnd::EndLostTracks(Qt::MouseButtons held) {
  if (leftDown_ && !(held & Qt::LeftButton)) {
    OnLeftTrackLost();
    EndLeftTrack();
  }
  if (rightDown_ && !(held & Qt::RightButton)) EndRightTrack();
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

void TMouseWnd::ShowBusy(bool busy) {
  SetCursorId(busy ? kBusyCursor : kNormalCursor);
}

void TMouseWnd::SetCursorId(int id) {
  if (id == cursorId_) return;
  cursorId_ = id;
  view_->viewport()->setCursor(CursorById(id, devicePixelRatioF()));
}

void TMouseWnd::ShowCursor(Qt::CursorShape shape) {
  cursorId_ = kNoCursor;
  if (view_->viewport()->cursor().shape() != shape) view_->viewport()->setCursor(shape);
}

QRect TMouseWnd::LogicalArea(const QRect& client) const {
  const qreal scale = devicePixelRatioF();
  return QRectF(QPointF(client.topLeft()) / scale, QSizeF(client.size()) / scale).toAlignedRect();
}

void TMouseWnd::Invalidate(const QRect& area) {
  view_->viewport()->update(LogicalArea(area));
}

QBrush TMouseWnd::Ground() const {
  return view_->viewport()->palette().brush(view_->viewport()->backgroundRole());
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

QSize TMouseWnd::RoomWithoutBars() const {
  return view_->Room();
}

void TMouseWnd::ScrollTo(const QPoint& position) {
  view_->horizontalScrollBar()->setValue(position.x());
  view_->verticalScrollBar()->setValue(position.y());
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

}  // namespace plenovia
