#include "depthmap/ui/level_label_font.h"

#include <QFontMetrics>
#include <QImage>
#include <QPainter>
#include <algorithm>

#include "depthmap/object_painting.h"

namespace plenovia {

namespace {

constexpr double kPoints = 8;
constexpr double kPointsPerInch = 72;
constexpr double kUsualPixels = kPoints / kPointsPerInch * 96;

int PixelSize(const QWidget& widget) {
  return qRound(kPoints / kPointsPerInch * widget.logicalDpiY() * widget.devicePixelRatioF());
}

RowSpans BlackSpans(const QImage& picture, int y, int firstColumn) {
  RowSpans spans;
  for (int x = 0; x < picture.width(); ++x) {
    if (qGray(picture.pixel(x, y)) > 127) continue;
    AppendSpan(spans, firstColumn + x, firstColumn + x + 1);
  }
  return spans;
}

}  // namespace

LevelLabelFont::LevelLabelFont(const QWidget& widget) : font_(widget.font()) {
  font_.setPixelSize(PixelSize(widget));
  font_.setWeight(QFont::Normal);
  font_.setItalic(false);
  font_.setStyleStrategy(QFont::NoAntialias);
}

bool LevelLabelFont::Fits(const QWidget& widget) const {
  return font_.pixelSize() == PixelSize(widget);
}

const LevelLabel& LevelLabelFont::Label(std::int32_t level) {
  const auto [known, isNew] = labels_.try_emplace(level);
  LevelLabel& label = known->second;
  if (!isNew) return label;
  const QString text = QString::number(level);
  const QFontMetrics metrics(font_);
  const int toMiddle = metrics.horizontalAdvance(text) / 2;
  const QRect box = metrics.tightBoundingRect(text).adjusted(-1, -1, 1, 1);
  QImage picture(box.size(), QImage::Format_RGB32);
  picture.fill(Qt::white);
  QPainter painter(&picture);
  painter.setFont(font_);
  painter.setPen(Qt::black);
  painter.drawText(-box.topLeft(), text);
  painter.end();
  const double further = std::max(0.0, font_.pixelSize() / kUsualPixels - 1);
  label.left = box.left() - toMiddle + qRound(static_cast<double>(kLabelOffset.x) * further);
  label.right = label.left + box.width();
  label.top = box.top() + qRound(static_cast<double>(kLabelOffset.y) * further);
  for (int y = 0; y < box.height(); ++y) {
    label.rows.push_back(BlackSpans(picture, y, static_cast<int>(label.left)));
  }
  return label;
}

}  // namespace plenovia
