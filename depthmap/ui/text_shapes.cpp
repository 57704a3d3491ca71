#include "depthmap/ui/text_shapes.h"

#include <QFont>
#include <QPainterPath>
#include <QPolygonF>
#include <algorithm>

#include "depthmap/outline_polygons.h"

namespace plenovia {

namespace {

QPainterPath PathOf(const TextStyle& style) {
  QFont font;
  if (!style.family.isEmpty()) font.setFamily(style.family);
  font.setPixelSize(std::clamp(style.size, kLeastTextSize, kGreatestTextSize));
  font.setBold(style.bold);
  font.setHintingPreference(QFont::PreferNoHinting);
  font.setLetterSpacing(QFont::AbsoluteSpacing,
                        std::clamp(style.spacing, -kGreatestSpacing, kGreatestSpacing));
  QPainterPath path;
  path.setFillRule(Qt::WindingFill);
  path.addText({}, font, style.text.left(kLongestText));
  // Letters that overlap, and strokes within one, become outlines that do not cross.
  path = path.simplified();
  return path.translated(-path.boundingRect().topLeft());
}

}  // namespace

std::vector<std::unique_ptr<TDepthObj>> TextShapes(const TextStyle& style, std::int32_t level) {
  std::vector<Outline> outlines;
  for (const QPolygonF& polygon : PathOf(style).toSubpathPolygons()) {
    Outline outline;
    for (const QPointF& point : polygon) outline.push_back({point.x(), point.y()});
    outlines.push_back(std::move(outline));
  }
  return OutlinePolygons(outlines, level);
}

PixelRect BoxAround(const std::vector<std::unique_ptr<TDepthObj>>& shapes) {
  if (shapes.empty()) return {};
  PixelRect box = shapes.front()->GetRect().Normalised();
  for (const auto& shape : shapes) {
    const PixelRect one = shape->GetRect().Normalised();
    box = {std::min(box.left, one.left), std::min(box.top, one.top), std::max(box.right, one.right),
           std::max(box.bottom, one.bottom)};
  }
  return box;
}

}  // namespace plenovia
