// The handles of an object: what they are, where they are, and what dragging one makes of the
// shape.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "depthmap/depth_list.h"
#include "depthmap/map_gesture.h"
#include "depthmap/snapped_way.h"

namespace plenovia {

// Which of an object's two columns x1 and x2, or rows y1 and y2, a handle moves.
enum class HandleSide { kNeither, kFirst, kSecond };

struct MapHandle {
  static constexpr int kNoVertex = -1;

  DepthPoint at;
  HandleSide column = HandleSide::kNeither;
  HandleSide row = HandleSide::kNeither;
  int vertex = kNoVertex;  // of a polygon

  bool IsVertex() const { return vertex != kNoVertex; }
};

// The vertices of a polygon, the four corners of the rectangle, and the middles of its sides where
// these are at least `roomy` pixels long. Lines have no middles, a polygon that covers
// nothing has no handles.
std::vector<MapHandle> HandlesOf(const TDepthObj& object, std::int64_t roomy);

// The handle at a point, up to `tolerance` pixels away but never so far that a small shape could
// not be held between its handles; or nothing.
std::optional<MapHandle> HandleAt(const TDepthObj& object, const DepthPoint& at,
                                  std::int64_t tolerance);

// The same of the object that alone is selected, unless it is the background box, which has none.
std::optional<MapHandle> HandleOfSelected(const TDepthList& list, const DepthPoint& at,
                                          std::int64_t tolerance);

// What the shape becomes when a handle goes this way. With Shift the proportions stay, a line goes
// along an axis or diagonal, and a vertex does so from the one before it; with Alt the middle
// stays.
DepthGeometry WithHandleMoved(const TDepthObj& object, const DepthGeometry& start,
                              const MapHandle& handle, const MapWay& way, const GestureKeys& keys);

// The vertex behind which a polygon's edge leads by the point, up to `tolerance` pixels away.
std::optional<int> EdgeAt(const TDepthObj& polygon, const DepthPoint& at, std::int64_t tolerance);

// A press on such a handle; null when there is none. With Ctrl a vertex is deleted, as long as
// three are left.
std::unique_ptr<MapGesture> PressOnHandle(TDepthList& list, const GesturePress& press);

// What came of adding a vertex to a polygon.
enum class AddedPoint { kNone, kAdded, kTooMany };

// Puts a vertex at the point into the edge of the selected polygon that is there; kTooMany when the
// polygon has as many as it can have.
AddedPoint AddPointAt(TDepthList& list, const DepthPoint& at, std::int64_t tolerance);

}  // namespace plenovia
