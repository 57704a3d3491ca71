#include "images/ui/pattern_sample.h"

#include <QPaintEvent>
#include <QPainter>
#include <QtMath>
#include <utility>

#include "platform/ui/picture_painting.h"

namespace plenovia {

namespace {

constexpr int kSide = 104;  // pixels of the display

}  // namespace

PatternSample::PatternSample(QWidget* parent) : QWidget(parent) {
  setObjectName(QStringLiteral("sample501"));
  setAttribute(Qt::WA_OpaquePaintEvent);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void PatternSample::SetPattern(std::shared_ptr<const IndexedImage> pattern) {
  pattern_ = std::move(pattern);
  update();
}

QSize PatternSample::sizeHint() const {
  const int side = qCeil(kSide / devicePixelRatioF());
  return {side, side};
}

void PatternSample::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  painter.fillRect(rect(), Qt::white);
  if (pattern_ == nullptr) return;
  UseDevicePixels(painter);
  PaintPicture(painter, *pattern_, 1.0, {0, 0}, DevicePixels(*this, event->rect()));
}

}  // namespace plenovia
