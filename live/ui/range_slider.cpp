#include "live/ui/range_slider.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <vector>

namespace plenovia {

namespace {

constexpr int kHandle = 7;  // half the width of a handle
constexpr int kTrack = 18;  // below the histogram: the track and the handles
constexpr std::int64_t kLeast = 31;
constexpr std::int64_t kFar = std::numeric_limits<std::int32_t>::max();

}  // namespace

RangeSlider::RangeSlider(QWidget* parent) : QWidget(parent) {
  setFocusPolicy(Qt::StrongFocus);
  setCursor(Qt::PointingHandCursor);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QRect RangeSlider::Plot() const {
  return rect().adjusted(kHandle + 1, 2, -kHandle - 1, -kTrack);
}

int RangeSlider::PlaceOf(std::int64_t level) const {
  const QRect plot = Plot();
  const auto all = static_cast<double>(std::max<std::int64_t>(1, axis_.highest - axis_.lowest));
  const double part = static_cast<double>(level - axis_.lowest) / all;
  return plot.left() + qRound(std::clamp(part, 0.0, 1.0) * (plot.width() - 1));
}

std::int64_t RangeSlider::LevelAt(int x) const {
  const QRect plot = Plot();
  const double part = std::clamp((x - plot.left()) / std::max(1.0, plot.width() - 1.0), 0.0, 1.0);
  return axis_.lowest + std::llround(part * static_cast<double>(axis_.highest - axis_.lowest));
}

int RangeSlider::HandlePlace(bool upper) const {
  return PlaceOf(upper ? range_.highest : range_.lowest);
}

void RangeSlider::UpdateAxis() {
  if (grip_ != Grip::kNone) return;
  const LevelRange levels = histogram_ ? LevelsOf(*histogram_) : LevelRange{};
  const std::int64_t low = std::min({std::int64_t{0}, levels.lowest, range_.lowest});
  const std::int64_t high = std::max({kLeast, levels.highest, range_.highest});
  const std::int64_t room = (high - low) / 4;
  axis_ = {low < 0 ? low - room : 0, high <= 255 && high > 204 ? 255 : high + room};
  update();
}

void RangeSlider::SetHistogram(const std::shared_ptr<const LevelHistogram>& histogram) {
  histogram_ = histogram;
  UpdateAxis();
}

void RangeSlider::SetRange(std::int32_t zmin, std::int32_t zmax, LevelRange used) {
  exchanged_ = zmin > zmax;
  range_ = {std::min(zmin, zmax), std::max(zmin, zmax)};
  used_ = {std::min(used.lowest, used.highest), std::max(used.lowest, used.highest)};
  setToolTip(tr("Depth range %1 to %2 (drag the ends or the part between them; double click "
                "resets it)")
                 .arg(range_.lowest)
                 .arg(range_.highest));
  UpdateAxis();
}

void RangeSlider::Choose(std::int64_t low, std::int64_t high) {
  low = std::clamp(low, -kFar, kFar);
  high = std::clamp(high, low, kFar);
  if (low == range_.lowest && high == range_.highest) return;
  range_ = {low, high};
  update();
  Q_EMIT RangeChosen(static_cast<std::int32_t>(low), static_cast<std::int32_t>(high));
}

void RangeSlider::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  const int x = event->pos().x();
  const int low = PlaceOf(range_.lowest);
  const int high = PlaceOf(range_.highest);
  gripLevel_ = LevelAt(x);
  gripRange_ = range_;
  if (x > low + kHandle && x < high - kHandle) {
    grip_ = Grip::kBoth;
    return;
  }
  grip_ =
      std::abs(x - low) < std::abs(x - high) || (low == high && x < low) ? Grip::kLow : Grip::kHigh;
  mouseMoveEvent(event);
}

void RangeSlider::mouseMoveEvent(QMouseEvent* event) {
  const std::int64_t level = LevelAt(event->pos().x());
  switch (grip_) {
    case Grip::kLow:
      return Choose(std::min(level, range_.highest), range_.highest);
    case Grip::kHigh:
      return Choose(range_.lowest, std::max(level, range_.lowest));
    case Grip::kBoth:
      return Choose(gripRange_.lowest + level - gripLevel_,
                    gripRange_.highest + level - gripLevel_);
    case Grip::kNone:
      break;
  }
}

void RangeSlider::mouseReleaseEvent(QMouseEvent*) {
  grip_ = Grip::kNone;
  UpdateAxis();
}

void RangeSlider::mouseDoubleClickEvent(QMouseEvent*) {
  grip_ = Grip::kNone;
  Q_EMIT ResetAsked();
}

void RangeSlider::keyPressEvent(QKeyEvent* event) {
  int step = 0;
  if (event->key() == Qt::Key_Left || event->key() == Qt::Key_Down) step = -1;
  if (event->key() == Qt::Key_Right || event->key() == Qt::Key_Up) step = 1;
  if (step == 0) return QWidget::keyPressEvent(event);
  if (event->modifiers() & Qt::ShiftModifier) {
    Choose(std::min(range_.lowest + step, range_.highest), range_.highest);
  } else {
    Choose(range_.lowest, std::max(range_.highest + step, range_.lowest));
  }
  UpdateAxis();
}

void RangeSlider::PaintHistogram(QPainter& painter) const {
  const QRect plot = Plot();
  if (!histogram_ || plot.width() < 2) return;
  const int bins =
      static_cast<int>(std::min<std::int64_t>(axis_.highest - axis_.lowest + 1, plot.width()));
  const std::vector<std::int64_t> counts = Binned(*histogram_, axis_, bins);
  const std::int64_t most = *std::ranges::max_element(counts);
  if (most == 0) return;
  const QColor inside = palette().color(QPalette::Highlight);
  const QColor outside = palette().color(QPalette::Mid);
  for (int bin = 0; bin < bins; ++bin) {
    const std::int64_t count = counts[static_cast<std::size_t>(bin)];
    if (count == 0) continue;
    const std::int64_t level = axis_.lowest + (axis_.highest - axis_.lowest + 1) * bin / bins;
    // The square root, so that a large ground does not dwarf the rest.
    const double part = std::sqrt(static_cast<double>(count) / static_cast<double>(most));
    const int height = std::max(2, qRound(part * plot.height()));
    const int left = PlaceOf(level);
    const int width = std::max(1, plot.width() / bins - 1);
    const bool held = level >= used_.lowest && level <= used_.highest;
    painter.fillRect(QRect(left - width / 2, plot.bottom() + 1 - height, width, height),
                     held ? inside : outside);
  }
}

void RangeSlider::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QRect plot = Plot();
  painter.fillRect(plot.adjusted(-kHandle, 0, kHandle, 0), palette().color(QPalette::Base));
  PaintHistogram(painter);

  const int y = plot.bottom() + kTrack / 2;
  const int low = PlaceOf(range_.lowest);
  const int high = PlaceOf(range_.highest);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(palette().color(QPalette::Mid));
  painter.drawRoundedRect(QRect(plot.left(), y - 1, plot.width(), 3), 1, 1);
  // Far is dark and near is bright, as in a depth picture.
  QLinearGradient depth(low, 0, high, 0);
  depth.setColorAt(exchanged_ ? 1 : 0, QColor(40, 40, 40));
  depth.setColorAt(exchanged_ ? 0 : 1, QColor(240, 240, 240));
  painter.setPen(palette().color(QPalette::Mid));
  painter.setBrush(depth);
  painter.drawRoundedRect(QRect(QPoint(low, y - 3), QPoint(high, y + 3)), 2, 2);
  if (used_.lowest != range_.lowest || used_.highest != range_.highest) {
    painter.setPen(QPen(palette().color(QPalette::Highlight), 1, Qt::DashLine));
    for (const std::int64_t level : {used_.lowest, used_.highest}) {
      const int x = PlaceOf(level);
      painter.drawLine(x, plot.top(), x, plot.bottom());
    }
  }
  painter.setPen(palette().color(hasFocus() ? QPalette::Highlight : QPalette::Dark));
  painter.setBrush(palette().color(QPalette::Button));
  for (const int x : {low, high}) {
    const std::array<QPointF, 5> handle = {QPointF(x, y - 7), QPointF(x + 5, y - 2),
                                           QPointF(x + 5, y + 7), QPointF(x - 5, y + 7),
                                           QPointF(x - 5, y - 2)};
    painter.drawPolygon(handle.data(), static_cast<int>(handle.size()));
  }
}

}  // namespace plenovia
