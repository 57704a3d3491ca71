#include "images/ui/picture_wnd.h"

#include <QRegion>
#include <algorithm>
#include <utility>

#include "codec/picture_format.h"
#include "documents/ui/commands.h"
#include "images/cut_picture.h"
#include "images/gray_palette.h"
#include "images/ui/clipboard.h"
#include "platform/ui/private_message.h"
#include "platform/ui/resource_pictures.h"
#include "platform/ui/text.h"
#include "platform/vector_state.h"
#include "platform/zoomed_picture.h"

namespace plenovia {

namespace {

constexpr int kRoomAroundPicture = 30;

}  // namespace

TPictureWnd::TPictureWnd(QMdiArea* client, const QString& title, QWidget* frame,
                         std::shared_ptr<const IndexedImage> picture, const QSize& size)
    : TMouseWnd(client, title, frame), picture_(std::move(picture)), size_(size) {
  SetWindowKind(kPictureWindow);
  setWindowIcon(NamedIcon(QStringLiteral("i2")));
  SetTitle(title);
  SetWindowSize(size + QSize(kRoomAroundPicture, kRoomAroundPicture));
  UpdateScrolling();
}

void TPictureWnd::SetTitle(const QString& path) {
  setWindowTitle(BaseNameTitle(path));
}

void TPictureWnd::SetSaved(bool saved) {
  saved_ = saved;
  Q_EMIT StateChanged();
}

void TPictureWnd::SetImage(std::shared_ptr<const IndexedImage> picture) {
  picture_ = std::move(picture);
  if (picture_) {
    size_ = {picture_->width(), picture_->height()};
    FitToImage();
  }
  UpdateScrolling();
  Q_EMIT StateChanged();
}

void TPictureWnd::FitToImage() {
  if (!isMaximized() && !isMinimized()) SetClientSize(size_);
}

void TPictureWnd::ZoomIn() {
  if (CanZoomIn()) SetZoom(zoom_ * 2);
}

void TPictureWnd::ZoomOut() {
  if (CanZoomOut()) SetZoom(zoom_ * 0.5);
}

void TPictureWnd::SetZoom(double zoom) {
  const auto middle = [this] { return QRectF({}, QSizeF(ClientSize())).center(); };
  const QPointF place = (middle() - Corner()) / zoom_;
  zoom_ = zoom;
  UpdateScrolling();
  ScrollTo((place * zoom_ - middle()).toPoint());
  Q_EMIT StateChanged();
}

void TPictureWnd::ZoomAbout(const QPoint& client, int steps) {
  const QPointF place = QPointF(client - Corner()) / zoom_;
  for (; steps > 0; --steps) ZoomIn();
  for (; steps < 0; ++steps) ZoomOut();
  ScrollTo((place * zoom_).toPoint() - client);
}

void TPictureWnd::MakeGray() {
  if (!picture_) return;
  auto gray = std::make_shared<IndexedImage>(*picture_);
  gray->SetPalette(GrayPalette(gray->palette()));
  const bool changes = gray->palette() != picture_->palette();
  picture_ = std::move(gray);
  InvalidateAll();
  if (changes) SetSaved(false);
}

BitmapInfo TPictureWnd::Description() const {
  return picture_ ? TGraphIO::GetBitmapInfo(*picture_) : BitmapInfo{};
}

std::int64_t TPictureWnd::ImageBytes() const {
  const BitmapInfo info = Description();
  return std::int64_t{info.bytesPerRow} * info.height;
}

QRect TPictureWnd::Selection() const {
  if (!picture_) return {};
  const QRect whole({}, size_);
  return Tracking().IsEmpty() ? whole : Tracking().Normalised();
}

bool TPictureWnd::HandlesCommand(int command) const {
  return command == kCmZoomIn || command == kCmZoomOut || command == kCmActualSize ||
         command == kCmGrayImage || command == kCmCopy;
}

bool TPictureWnd::CommandEnabled(int command) const {
  if (command == kCmZoomIn) return CanZoomIn();
  if (command == kCmZoomOut) return CanZoomOut();
  if (command == kCmActualSize) return zoom_ != 1.0;
  return HandlesCommand(command);
}

void TPictureWnd::RunCommand(int command) {
  if (command == kCmZoomIn) ZoomIn();
  if (command == kCmZoomOut) ZoomOut();
  if (command == kCmActualSize) ZoomToActualSize();
  if (command == kCmGrayImage) MakeGray();
  if (command == kCmCopy) CopySelection();
}

void TPictureWnd::CopySelection() const {
  if (!picture_) return;
  const QRect area = Selection();
  const auto cut = CutPicture(
      *picture_, {area.left(), area.top(), area.left() + area.width(), area.top() + area.height()});
  if (cut) CopyToClipboard(*cut);
}

Result<void> TPictureWnd::Save(const QString& path) {
  if (!picture_) return {};
  TGraphIO codec;
  codec.SetGraphicFormat(static_cast<int>(FormatOfPath(path.toStdString())));
  ClearUpperVectorHalves();
  Result<void> written = codec.Write_File(ToPath(path), *picture_, Comment());
  SetSaved(written.has_value());
  if (written) SetFile(path);
  return written;
}

QString TPictureWnd::SavingText(const QString& path) const {
  if (!picture_) return {};
  // Formats without a name of their own are written as BMP files are.
  GraphicFormat format = FormatOfPath(path.toStdString());
  return tr("Writing %1 File").arg(ToQString(NameWhileWriting(format)));
}

DocumentStatus TPictureWnd::Status() const {
  if (!picture_) return {QString(), QString()};
  const BitmapInfo info = Description();
  return PictureStatus(info.width, info.height, info.bitsPerPixel, ImageBytes());
}

QSize TPictureWnd::ZoomedSize() const {
  return {ZoomedSide(size_.width(), zoom_), ZoomedSide(size_.height(), zoom_)};
}

QPoint TPictureWnd::Corner() const {
  QPoint corner = -ScrollPosition();
  if (isMaximized()) {
    const auto centred = [this](int client, int side) {
      return std::max(0, static_cast<int>(client / 2 - side * zoom_ * 0.5));
    };
    const QSize client = ClientSize();
    corner += {centred(client.width(), size_.width()), centred(client.height(), size_.height())};
  }
  return corner;
}

QPoint TPictureWnd::TrackingPoint(const QPoint& client) const {
  const QPoint place = client - Corner();
  return {UnzoomedPosition(place.x(), zoom_), UnzoomedPosition(place.y(), zoom_)};
}

QRect TPictureWnd::SelectionFrame() const {
  const QRect selected = Tracking().Normalised();
  const auto zoomed = [this](int position) { return static_cast<int>(position * zoom_); };
  const QPoint first(zoomed(selected.left()), zoomed(selected.top()));
  const QPoint last(zoomed(selected.right() + 1) - 1, zoomed(selected.bottom() + 1) - 1);
  return QRect(first, last).translated(Corner());
}

void TPictureWnd::Paint(QPainter& painter, const QRect& exposed) {
  QRect covered;
  if (picture_) {
    covered = shown_.Paint(painter, picture_, zoom_, Corner(), {{}, ClientSize()}, exposed);
  }
  for (const QRect& around : QRegion(exposed) - covered) {
    painter.fillRect(around, isMaximized() ? QBrush(Qt::black) : Ground());
  }
  if (picture_ && !Tracking().IsEmpty()) PaintSelection(painter);
}

void TPictureWnd::PaintSelection(QPainter& painter) const {
  const QRect frame = SelectionFrame();
  const QRect sides[] = {QRect(frame.left(), frame.top(), frame.width(), 1),
                         QRect(frame.left(), frame.bottom(), frame.width(), 1),
                         QRect(frame.left(), frame.top(), 1, frame.height()),
                         QRect(frame.right(), frame.top(), 1, frame.height())};
  for (const QRect& side : sides) {
    // On white, the hatching shows on dark pictures too.
    painter.fillRect(side, Qt::white);
    painter.fillRect(side, QBrush(Qt::black, Qt::BDiagPattern));
  }
}

void TPictureWnd::UpdateScrolling() {
  SetScrollExtent(picture_ ? ZoomedSize() : QSize());
}

void TPictureWnd::ClientResized() {
  InvalidateAll();
}

void TPictureWnd::EvMDIActivate(bool active) {
  if (active) PostPrivateMessage(this, WM_REFRESHSELF);
}

void TPictureWnd::OnLButtonDown(MouseKeys, QPoint) {
  PostPrivateMessage(this, WM_REFRESHSELF);
}

void TPictureWnd::LeftDrag(int x, int y) {
  Invalidate(SelectionFrame().adjusted(-1, -1, 1, 1));
  UpdateTrack(x, y);
  Invalidate(SelectionFrame().adjusted(-1, -1, 1, 1));
}

void TPictureWnd::customEvent(QEvent* event) {
  if (event->type() != PrivateMessage::EventType()) return;
  if (static_cast<PrivateMessage*>(event)->number() != WM_REFRESHSELF) return;
  InvalidateAll();
  if (picture_) SendPrivateMessage(Frame(), PrivateMessage(WM_UPDATESTATUS));
}

void TPictureWnd::changeEvent(QEvent* event) {
  TMouseWnd::changeEvent(event);
  if (event->type() == QEvent::WindowStateChange) UpdateScrolling();
}

}  // namespace plenovia
