#include "depthmap/handles.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdlib>
#include <memory>
#include <utility>

#include "depthmap/geometry.h"

namespace plenovia {

namespace {

constexpr std::size_t kFewestVertices = 3;

// A number along one axis of a drag: where the handle was, and what stays.
struct Axis {
  double handle = 0;
  double still = 0;
  double way = 0;

  double Reach() const { return handle - still; }
  double NewReach() const { return Reach() + way; }
};

Axis MakeAxis(HandleSide side, std::int32_t first, std::int32_t second, std::int64_t way,
              bool fromMiddle) {
  Axis axis;
  const double middle = (static_cast<double>(first) + second) / 2;
  axis.handle = side == HandleSide::kFirst ? first : second;
  axis.still = fromMiddle ? middle : side == HandleSide::kFirst ? second : first;
  axis.way = side == HandleSide::kNeither ? 0 : static_cast<double>(way);
  return axis;
}

// Puts a side and, where the middle stays, the other one.
void PutSides(const Axis& axis, HandleSide side, bool fromMiddle, std::int32_t& first,
              std::int32_t& second) {
  if (side == HandleSide::kNeither) return;
  std::int32_t& moved = side == HandleSide::kFirst ? first : second;
  std::int32_t& other = side == HandleSide::kFirst ? second : first;
  moved = Rounded(axis.still + axis.NewReach());
  if (fromMiddle) other = Rounded(axis.still - axis.NewReach());
}

void KeepProportions(Axis& x, Axis& y) {
  if (x.Reach() == 0 || y.Reach() == 0) return;
  const double scaleX = x.NewReach() / x.Reach();
  const double scaleY = y.NewReach() / y.Reach();
  const double scale = std::max(std::abs(scaleX), std::abs(scaleY));
  x.way = std::copysign(scale, scaleX) * x.Reach() - x.Reach();
  y.way = std::copysign(scale, scaleY) * y.Reach() - y.Reach();
}

void KeepToDiagonals(Axis& x, Axis& y) {
  const MapWay reach = SnappedWay({std::llround(x.NewReach()), std::llround(y.NewReach())});
  x.way = static_cast<double>(reach.right) - x.Reach();
  y.way = static_cast<double>(reach.down) - y.Reach();
}

DepthRect WithSideMoved(DepthObjKind kind, const DepthRect& start, const MapHandle& handle,
                        const MapWay& way, const GestureKeys& keys) {
  Axis x = MakeAxis(handle.column, start.x1, start.x2, way.right, keys.alt);
  Axis y = MakeAxis(handle.row, start.y1, start.y2, way.down, keys.alt);
  if (keys.shift && handle.column != HandleSide::kNeither && handle.row != HandleSide::kNeither) {
    kind == LineObj ? KeepToDiagonals(x, y) : KeepProportions(x, y);
  }
  DepthRect rect = start;
  PutSides(x, handle.column, keys.alt, rect.x1, rect.x2);
  PutSides(y, handle.row, keys.alt, rect.y1, rect.y2);
  return rect;
}

std::int64_t Away(const DepthPoint& a, const DepthPoint& b) {
  return std::max(std::abs(std::int64_t{a.x} - b.x), std::abs(std::int64_t{a.y} - b.y));
}

class HandleGesture : public MapGesture {
 public:
  HandleGesture(TDepthList& list, const GesturePress& press, const MapHandle& handle)
      : list_(list),
        object_(list.Selected()),
        from_(press.at),
        handle_(handle),
        start_(object_->GetGeometry()) {
    list_.BeginEdit(handle.IsVertex() ? EditKind::kMovePoint : EditKind::kResize);
  }
  ~HandleGesture() override { list_.EndEdit(); }

  void MoveTo(const DepthPoint& at, const GestureKeys& keys) override {
    const MapWay way{std::int64_t{at.x} - from_.x, std::int64_t{at.y} - from_.y};
    list_.SetGeometry(object_, WithHandleMoved(*object_, start_, handle_, way, keys));
  }
  void Cancel() override { list_.TakeBackEdit(); }

 private:
  TDepthList& list_;
  const TDepthObj* object_;
  DepthPoint from_;
  MapHandle handle_;
  DepthGeometry start_;
};

// The only selected object, unless it is the background box.
const TDepthObj* OnlySelected(const TDepthList& list) {
  if (list.Selection().size() != 1 || list.Selected() == list.Background()) return nullptr;
  return list.Selected();
}

// A press that is done at once.
class DoneGesture : public MapGesture {
 public:
  void MoveTo(const DepthPoint&, const GestureKeys&) override {}
  void Cancel() override {}
};

}  // namespace

std::vector<MapHandle> HandlesOf(const TDepthObj& object, std::int64_t roomy) {
  using enum HandleSide;
  std::vector<MapHandle> handles;
  if (object.GetKind() == PolygonObj && object.GetRegion() == nullptr) return handles;
  int vertex = 0;
  for (const DepthPoint& point : object.GetPoints()) {
    handles.push_back({point, kNeither, kNeither, vertex++});
  }
  const DepthRect& rect = object.GetRect();
  handles.push_back({{rect.x1, rect.y1}, kFirst, kFirst});
  handles.push_back({{rect.x2, rect.y2}, kSecond, kSecond});
  handles.push_back({{rect.x2, rect.y1}, kSecond, kFirst});
  handles.push_back({{rect.x1, rect.y2}, kFirst, kSecond});
  if (object.GetKind() == LineObj) return handles;
  const DepthSize size = object.GetSize();
  const auto middle = [](std::int32_t a, std::int32_t b) {
    return static_cast<std::int32_t>((std::int64_t{a} + b) / 2);
  };
  if (size.width >= roomy) {
    handles.push_back({{middle(rect.x1, rect.x2), rect.y1}, kNeither, kFirst});
    handles.push_back({{middle(rect.x1, rect.x2), rect.y2}, kNeither, kSecond});
  }
  if (size.height >= roomy) {
    handles.push_back({{rect.x1, middle(rect.y1, rect.y2)}, kFirst, kNeither});
    handles.push_back({{rect.x2, middle(rect.y1, rect.y2)}, kSecond, kNeither});
  }
  return handles;
}

std::optional<MapHandle> HandleAt(const TDepthObj& object, const DepthPoint& at,
                                  std::int64_t tolerance) {
  const DepthSize size = object.GetSize();
  const std::int64_t side = object.GetKind() == LineObj ? std::max(size.width, size.height)
                                                        : std::min(size.width, size.height);
  std::int64_t nearest = std::min(tolerance, side / 4);
  std::optional<MapHandle> found;
  for (const MapHandle& handle : HandlesOf(object, 4 * tolerance)) {
    const std::int64_t away = Away(handle.at, at);
    if (away > nearest || (found && away == nearest)) continue;
    nearest = away;
    found = handle;
  }
  return found;
}

std::optional<MapHandle> HandleOfSelected(const TDepthList& list, const DepthPoint& at,
                                          std::int64_t tolerance) {
  const TDepthObj* object = OnlySelected(list);
  return object != nullptr ? HandleAt(*object, at, tolerance) : std::nullopt;
}

DepthGeometry WithHandleMoved(const TDepthObj& object, const DepthGeometry& start,
                              const MapHandle& handle, const MapWay& way, const GestureKeys& keys) {
  if (!handle.IsVertex()) {
    return Fitted(start, WithSideMoved(object.GetKind(), start.rect, handle, way, keys));
  }
  DepthGeometry moved = start;
  const auto index = static_cast<std::size_t>(handle.vertex);
  const std::size_t count = start.points.size();
  if (index >= count) return moved;
  DepthPoint base = start.points[index];
  MapWay total = way;
  if (keys.shift && count > 1) {
    const DepthPoint before = start.points[(index + count - 1) % count];
    total = SnappedWay(
        {std::int64_t{base.x} - before.x + way.right, std::int64_t{base.y} - before.y + way.down});
    base = before;
  }
  moved.points[index] = {Rounded(base.x + static_cast<double>(total.right)),
                         Rounded(base.y + static_cast<double>(total.down))};
  return moved;
}

std::optional<int> EdgeAt(const TDepthObj& polygon, const DepthPoint& at, std::int64_t tolerance) {
  const auto points = polygon.GetPoints();
  std::optional<int> found;
  auto nearest = static_cast<double>(tolerance);
  for (std::size_t i = 0; i < points.size(); ++i) {
    const double away = DistanceToLine(at, points[i], points[(i + 1) % points.size()]);
    if (away > nearest) continue;
    nearest = away;
    found = static_cast<int>(i);
  }
  return found;
}

std::unique_ptr<MapGesture> PressOnHandle(TDepthList& list, const GesturePress& press) {
  const std::optional<MapHandle> handle = HandleOfSelected(list, press.at, press.tolerance);
  if (!handle) return nullptr;
  const TDepthObj* object = list.Selected();
  if (!press.keys.control || !handle->IsVertex()) {
    return std::make_unique<HandleGesture>(list, press, *handle);
  }
  DepthGeometry geometry = object->GetGeometry();
  if (geometry.points.size() > kFewestVertices) {
    geometry.points.erase(geometry.points.begin() + handle->vertex);
    const MapEdit edit(list, EditKind::kDeletePoint);
    list.SetGeometry(object, std::move(geometry));
  }
  return std::make_unique<DoneGesture>();
}

AddedPoint AddPointAt(TDepthList& list, const DepthPoint& at, std::int64_t tolerance) {
  const TDepthObj* object = OnlySelected(list);
  if (object == nullptr || object->GetKind() != PolygonObj) return AddedPoint::kNone;
  const std::optional<int> edge = EdgeAt(*object, at, tolerance);
  if (!edge) return AddedPoint::kNone;
  DepthGeometry geometry = object->GetGeometry();
  if (geometry.points.size() >= TDepthObj::kMaxVertices) return AddedPoint::kTooMany;
  geometry.points.insert(geometry.points.begin() + *edge + 1, at);
  const MapEdit edit(list, EditKind::kAddPoint);
  list.SetGeometry(object, std::move(geometry));
  return AddedPoint::kAdded;
}

}  // namespace plenovia
