#include "depthmap/picking.h"

#include <algorithm>

#include "depthmap/geometry.h"

namespace plenovia {

namespace {

bool IsReached(const TDepthObj& object, const DepthPoint& at, std::int64_t tolerance) {
  const PixelRect box = object.GetRect().Normalised();
  if (at.x < box.left - tolerance || at.x > box.right + tolerance || at.y < box.top - tolerance ||
      at.y > box.bottom + tolerance) {
    return false;
  }
  if (object.ContainsPoint(at.x, at.y)) return true;
  if (object.GetKind() == LineObj) {
    const DepthRect& rect = object.GetRect();
    return DistanceToLine(at, {rect.x1, rect.y1}, {rect.x2, rect.y2}) <=
           static_cast<double>(tolerance);
  }
  return std::min(box.right - box.left, box.bottom - box.top) < tolerance;
}

}  // namespace

const TDepthObj* PickObject(const TDepthList& list, const DepthPoint& at, std::int64_t tolerance) {
  const TDepthObj* object = list.Head();
  while (object != nullptr &&
         !IsReached(*object, at, object == list.Background() ? 0 : tolerance)) {
    object = TDepthList::Below(*object);
  }
  return object;
}

const TDepthObj* PickBelow(const TDepthList& list, const DepthPoint& at, std::int64_t tolerance,
                           const TDepthObj* above) {
  if (above == nullptr || !list.Holds(*above) || !IsReached(*above, at, tolerance)) {
    return PickObject(list, at, tolerance);
  }
  const TDepthObj* object = TDepthList::Below(*above);
  while (object != nullptr && !IsReached(*object, at, tolerance)) {
    object = TDepthList::Below(*object);
  }
  return object != nullptr ? object : PickObject(list, at, tolerance);
}

std::vector<const TDepthObj*> ObjectsInside(const TDepthList& list, const DepthRect& frame) {
  const PixelRect all = frame.Normalised();
  std::vector<const TDepthObj*> inside = ObjectsAboveBackground(list);
  std::erase_if(inside, [&](const TDepthObj* object) {
    const PixelRect box = object->GetRect().Normalised();
    return box.left < all.left || box.right > all.right || box.top < all.top ||
           box.bottom > all.bottom;
  });
  return inside;
}

std::vector<const TDepthObj*> ObjectsAboveBackground(const TDepthList& list) {
  std::vector<const TDepthObj*> all;
  for (const TDepthObj* object = list.Head(); object != list.Background();
       object = TDepthList::Below(*object)) {
    all.push_back(object);
  }
  return all;
}

const TDepthObj* NextObject(const TDepthList& list, const TDepthObj* from, bool upwards) {
  const TDepthObj* background = list.Background();
  if (list.Head() == background) return nullptr;
  const TDepthObj* lowest = TDepthList::Above(*background);
  if (from == nullptr || from == background) return upwards ? lowest : list.Head();
  const TDepthObj* next = upwards ? TDepthList::Above(*from) : TDepthList::Below(*from);
  if (next == nullptr) return lowest;
  return next == background ? list.Head() : next;
}

bool IsDegenerate(const TDepthObj& object) {
  const Region* region = object.GetRegion();
  if (region == nullptr) return true;
  const PixelRect& box = region->Bounds();
  for (std::int64_t y = box.top; y < box.bottom; ++y) {
    if (!region->Spans(y).empty()) return false;
  }
  return true;
}

}  // namespace plenovia
