// Which objects of a map the user means: by a point, by a frame, by going on from one to the next.
#pragma once

#include <cstdint>
#include <vector>

#include "depthmap/depth_list.h"

namespace plenovia {

// The topmost object at the point, or null. Lines, points and shapes smaller than `tolerance` are
// reached from up to that many pixels away.
const TDepthObj* PickObject(const TDepthList& list, const DepthPoint& at, std::int64_t tolerance);

// The next object there that is covered by `above`; the topmost one when there is none, or when
// `above` is not at the point.
const TDepthObj* PickBelow(const TDepthList& list, const DepthPoint& at, std::int64_t tolerance,
                           const TDepthObj* above);

// The objects that lie in the frame as a whole, topmost first, without the background box.
std::vector<const TDepthObj*> ObjectsInside(const TDepthList& list, const DepthRect& frame);

// All objects but the background box, topmost first.
std::vector<const TDepthObj*> ObjectsAboveBackground(const TDepthList& list);

// The object below `from`, or above it; round from one end to the other, and over the background
// box. With null the first of that way. Null in a map with a background box only.
const TDepthObj* NextObject(const TDepthList& list, const TDepthObj* from, bool upwards);

// Whether the shape covers no pixel at all.
bool IsDegenerate(const TDepthObj& object);

}  // namespace plenovia
