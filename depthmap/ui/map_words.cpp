#include "depthmap/ui/map_words.h"

#include <QCoreApplication>
#include <algorithm>
#include <cstdlib>

#include "platform/ui/text.h"

namespace plenovia {

namespace {

struct MapWords {
  Q_DECLARE_TR_FUNCTIONS(MapWords)
};

}  // namespace

QString PlaceWords(const TDepthList& list, const DepthPoint& at, const MapScale& scale) {
  QString words = MapWords::tr("x %1, y %2").arg(at.x).arg(at.y);
  if (at.x >= 0 && at.y >= 0 && at.x < list.GetWidth() && at.y < list.GetHeight()) {
    words += MapWords::tr(": level %1").arg(list.GetLevelAt(at.x, at.y));
  }
  if (!scale.IsOne()) words += MapWords::tr(" (zoom %1)").arg(ToQString(scale.Text()));
  return words;
}

QString DrawingWords(const RubberBand& rubber, std::int32_t level) {
  if (!rubber.IsActive()) return {};
  if (rubber.IsPolygon()) {
    return MapWords::tr("%1 of at most %2 points, level %3")
        .arg(rubber.Vertices().size())
        .arg(TDepthObj::kMaxVertices)
        .arg(level);
  }
  const auto [x1, y1, x2, y2] = rubber.Rect();
  return MapWords::tr("from %1, %2 to %3, %4: %5 x %6, level %7")
      .arg(x1)
      .arg(y1)
      .arg(x2)
      .arg(y2)
      .arg(std::abs(std::int64_t{x2} - x1))
      .arg(std::abs(std::int64_t{y2} - y1))
      .arg(level);
}

QString HiddenWords(std::int32_t level) {
  return MapWords::tr(
             "The new shape cannot be seen in depth: all that it covers has its level %1 already.")
      .arg(level);
}

}  // namespace plenovia
