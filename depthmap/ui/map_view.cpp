#include "depthmap/ui/map_view.h"

#include <QImage>
#include <algorithm>
#include <cstddef>
#include <utility>

#include "depthmap/ui/handle_painting.h"

namespace plenovia {

namespace {

constexpr std::size_t kMostAreas = 200;        // repainted one by one
constexpr std::int64_t kGreatestSide = 32767;  // of a window, in pixels

}  // namespace

TMapView::~TMapView() {
  if (list_) list_->SetOwner(nullptr);
}

void TMapView::ShowList(std::shared_ptr<TDepthList> list) {
  if (list_) list_->SetOwner(nullptr);
  picture_.reset();
  list_ = std::move(list);
  list_->SetOwner(this);
  rubber_.Stop();
  InvalidateAll();
}

void TMapView::ResizeToMap() {
  look_.scale = MapScale();
  UpdateExtent();
  SetClientSize(extent_);
  SetScrollExtent(extent_);
}

void TMapView::UpdateExtent() {
  const auto side = [this](std::int64_t size) {
    const std::int64_t shown = look_.scale.ShownEdge(std::min(size, kGreatestSide));
    return static_cast<int>(std::max<std::int64_t>(shown, 0));
  };
  extent_ = {side(list_->GetWidth()), side(list_->GetHeight())};
}

void TMapView::SetLook(const MapLook& look, const QPoint& stays) {
  const QPointF place = QPointF(stays + ScrollPosition()) / look_.scale.Factor();
  look_ = look;
  UpdateExtent();
  SetScrollExtent(extent_);
  ScrollTo((place * look_.scale.Factor()).toPoint() - stays);
  InvalidateAll();
  Q_EMIT StateChanged();
}

void TMapView::Zoom(int steps, const QPoint& stays) {
  MapLook look = look_;
  for (; steps > 0; --steps) look.scale = look.scale.Larger();
  for (; steps < 0; ++steps) look.scale = look.scale.Smaller();
  SetLook(look, stays);
}

void TMapView::ZoomToFit() {
  const QSize room = RoomWithoutBars();
  const MapScale scale =
      MapScale::Fitting(list_->GetWidth(), list_->GetHeight(), room.width(), room.height());
  SetLook({look_.view, scale}, {});
}

MapPicture& TMapView::Painting() {
  if (!labels_ || !labels_->Fits(*this)) {
    picture_.reset();
    labels_ = std::make_unique<LevelLabelFont>(*this);
  }
  if (!picture_) picture_ = std::make_unique<MapPicture>(*list_, *labels_);
  const QRect view = View();
  picture_->SetView(
      {view.left(), view.top(), view.left() + view.width(), view.top() + view.height()}, look_);
  return *picture_;
}

QRect TMapView::InClient(const PixelRect& area) const {
  const QRect view = View();
  const auto within = [](std::int64_t place, int first, int side) {
    return static_cast<int>(std::clamp<std::int64_t>(place - first, 0, side));
  };
  const QPoint corner(within(area.left, view.left(), view.width()),
                      within(area.top, view.top(), view.height()));
  const QPoint end(within(area.right, view.left(), view.width()),
                   within(area.bottom, view.top(), view.height()));
  return {corner, QSize(end.x() - corner.x(), end.y() - corner.y())};
}

QPoint TMapView::TrackingPoint(const QPoint& client) const {
  const QPoint shown = client + ScrollPosition();
  const auto place = [this](int pixel) { return static_cast<int>(look_.scale.MapPixel(pixel)); };
  return {place(shown.x()), place(shown.y())};
}

void TMapView::Paint(QPainter& painter, const QRect& exposed) {
  painter.fillRect(exposed, Ground());
  const QRect seen = exposed & QRect(QPoint(), ClientSize());
  if (seen.isEmpty()) return;
  const QRect area = seen.translated(ScrollPosition());
  QImage shown(area.size(), QImage::Format_ARGB32_Premultiplied);
  if (shown.isNull()) return;
  Painting().Render(
      {area.left(), area.top(), area.left() + area.width(), area.top() + area.height()}, rubber_,
      {reinterpret_cast<std::uint32_t*>(shown.bits()),
       static_cast<std::size_t>(shown.sizeInBytes()) / sizeof(std::uint32_t)});
  painter.drawImage(seen.topLeft(), shown);
  PaintHandles(painter, *list_, look_.scale, View());
}

void TMapView::Repaint(const PixelRect& area) {
  const auto row = [this](std::int64_t y) {
    return static_cast<int>(std::clamp<std::int64_t>(y, 0, list_->GridHeight()));
  };
  Q_EMIT DepthChanged(row(area.top), row(area.bottom));
  changed_.push_back(area);
  if (changed_.size() > 1) return;
  QMetaObject::invokeMethod(this, &TMapView::RepaintChanged, Qt::QueuedConnection);
}

void TMapView::RepaintChanged() {
  const std::vector<PixelRect> changed = std::exchange(changed_, {});
  if (changed.size() > kMostAreas) {
    InvalidateAll();
    return;
  }
  for (const PixelRect& area : changed) Invalidate(InClient(Painting().WithLabels(area)));
}

void TMapView::InvalidateRubber() {
  // Lines of a reduced map lie a pixel further.
  const PixelRect area = look_.scale.Shown(rubber_.Area());
  Invalidate(InClient({area.left - 1, area.top - 1, area.right + 1, area.bottom + 1}));
}

}  // namespace plenovia
