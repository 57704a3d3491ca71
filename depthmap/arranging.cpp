#include "depthmap/arranging.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>
#include <vector>

#include "depthmap/geometry.h"
#include "depthmap/selection_edits.h"
#include "depthmap/snapped_way.h"

namespace plenovia {

namespace {

std::vector<const TDepthObj*> Movable(const TDepthList& list) {
  std::vector<const TDepthObj*> objects;
  for (const TDepthObj* object : list.Selection()) {
    if (object != list.Background()) objects.push_back(object);
  }
  return objects;
}

PixelRect BoxOf(const TDepthObj& object) {
  return object.GetRect().Normalised();
}

PixelRect BoxAround(const std::vector<const TDepthObj*>& objects) {
  PixelRect all = BoxOf(*objects.front());
  for (const TDepthObj* object : objects) {
    const PixelRect box = BoxOf(*object);
    all = {std::min(all.left, box.left), std::min(all.top, box.top), std::max(all.right, box.right),
           std::max(all.bottom, box.bottom)};
  }
  return all;
}

// The geometry with each corner and vertex where `move` puts it.
template <class Move>
DepthGeometry Moved(const TDepthObj& object, Move move) {
  DepthGeometry geometry = object.GetGeometry();
  const DepthRect rect = geometry.rect;
  const DepthPoint first = move(DepthPoint{rect.x1, rect.y1});
  const DepthPoint second = move(DepthPoint{rect.x2, rect.y2});
  geometry.rect = {first.x, first.y, second.x, second.y};
  for (DepthPoint& point : geometry.points) point = move(point);
  return geometry;
}

DepthPoint At(std::int64_t x, std::int64_t y) {
  return {Rounded(static_cast<double>(x)), Rounded(static_cast<double>(y))};
}

}  // namespace

void TurnSelection(TDepthList& list, Turn turn) {
  const std::vector<const TDepthObj*> objects = Movable(list);
  if (objects.empty()) return;
  const MapEdit edit(list, EditKind::kRotate);
  // Twice the middle. Where width and height are not both even or odd, the middle goes half a
  // pixel to and fro, so that turns never add up to a way.
  const PixelRect all = BoxAround(objects);
  const std::int64_t x = all.left + all.right;
  const std::int64_t y = all.top + all.bottom;
  const std::int64_t half = (x - y) % 2 == 0 ? 0 : x % 2 == 0 ? 1 : -1;
  for (const TDepthObj* object : objects) {
    list.SetGeometry(object, Moved(*object, [&](const DepthPoint& point) {
                       return turn == Turn::kRight
                                  ? At((x + half + y) / 2 - point.y, (y - half - x) / 2 + point.x)
                                  : At((x + half - y) / 2 + point.y, (y - half + x) / 2 - point.x);
                     }));
  }
}

void MirrorSelection(TDepthList& list, MirrorAxis axis) {
  const std::vector<const TDepthObj*> objects = Movable(list);
  if (objects.empty()) return;
  const MapEdit edit(list, EditKind::kMirror);
  const PixelRect all = BoxAround(objects);
  for (const TDepthObj* object : objects) {
    DepthGeometry mirrored = Moved(*object, [&](const DepthPoint& point) {
      return axis == MirrorAxis::kLeftRight ? At(all.left + all.right - point.x, point.y)
                                            : At(point.x, all.top + all.bottom - point.y);
    });
    // Curves run counterclockwise from their first corner.
    if (object->GetKind() == CurveObj) {
      std::swap(mirrored.rect.x1, mirrored.rect.x2);
      std::swap(mirrored.rect.y1, mirrored.rect.y2);
    }
    list.SetGeometry(object, std::move(mirrored));
  }
}

bool RotateSelection(TDepthList& list, double degrees) {
  std::vector<const TDepthObj*> objects = Movable(list);
  std::erase_if(objects, [](const TDepthObj* object) {
    return object->GetKind() != PolygonObj && object->GetKind() != LineObj;
  });
  if (objects.empty()) return false;
  const MapEdit edit(list, EditKind::kRotate);
  const PixelRect all = BoxAround(objects);
  const double middleX = static_cast<double>(all.left + all.right) / 2;
  const double middleY = static_cast<double>(all.top + all.bottom) / 2;
  const double angle = degrees * std::numbers::pi / 180;
  const double sine = std::sin(angle);
  const double cosine = std::cos(angle);
  for (const TDepthObj* object : objects) {
    list.SetGeometry(object, Moved(*object, [&](const DepthPoint& point) {
                       const double x = point.x - middleX;
                       const double y = point.y - middleY;
                       return DepthPoint{Rounded(middleX + x * cosine - y * sine),
                                         Rounded(middleY + x * sine + y * cosine)};
                     }));
  }
  return true;
}

void AlignSelection(TDepthList& list, Alignment alignment) {
  const std::vector<const TDepthObj*> objects = Movable(list);
  if (objects.empty()) return;
  const MapEdit edit(list, EditKind::kAlign);
  const PixelRect all =
      objects.size() > 1 ? BoxAround(objects) : PixelRect{0, 0, list.GetWidth(), list.GetHeight()};
  for (const TDepthObj* object : objects) {
    const PixelRect box = BoxOf(*object);
    MapWay way;
    switch (alignment) {
      case Alignment::kLeft:
        way.right = all.left - box.left;
        break;
      case Alignment::kCentre:
        way.right = (all.left + all.right - box.left - box.right) / 2;
        break;
      case Alignment::kRight:
        way.right = all.right - box.right;
        break;
      case Alignment::kTop:
        way.down = all.top - box.top;
        break;
      case Alignment::kMiddle:
        way.down = (all.top + all.bottom - box.top - box.bottom) / 2;
        break;
      case Alignment::kBottom:
        way.down = all.bottom - box.bottom;
        break;
    }
    list.SetGeometry(object, Shifted(object->GetGeometry(), way));
  }
}

void SpreadSelection(TDepthList& list, Spread spread) {
  struct Extent {
    const TDepthObj* object;
    std::int64_t first;
    std::int64_t end;
  };
  std::vector<Extent> extents;
  for (const TDepthObj* object : Movable(list)) {
    const PixelRect box = BoxOf(*object);
    extents.push_back(spread == Spread::kAcross ? Extent{object, box.left, box.right}
                                                : Extent{object, box.top, box.bottom});
  }
  if (extents.size() < 3) return;
  std::stable_sort(extents.begin(), extents.end(), [](const Extent& a, const Extent& b) {
    return a.first + a.end < b.first + b.end;
  });
  std::int64_t room = extents.back().end - extents.front().first;
  for (const Extent& extent : extents) room -= extent.end - extent.first;
  const double gap = static_cast<double>(room) / static_cast<double>(extents.size() - 1);
  auto place = static_cast<double>(extents.front().first);
  const MapEdit edit(list, EditKind::kDistribute);
  for (const Extent& extent : extents) {
    const std::int64_t way = std::llround(place) - extent.first;
    place += static_cast<double>(extent.end - extent.first) + gap;
    list.SetGeometry(extent.object,
                     Shifted(extent.object->GetGeometry(),
                             spread == Spread::kAcross ? MapWay{way, 0} : MapWay{0, way}));
  }
}

}  // namespace plenovia
