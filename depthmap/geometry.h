// Arithmetic that the shapes of a depth map share.
#pragma once

#include <cstdint>

#include "depthmap/depth_obj.h"

namespace plenovia {

// The nearest 32-bit number.
std::int32_t Rounded(double value);

// How far the point is from the line between `a` and `b`.
double DistanceToLine(const DepthPoint& at, const DepthPoint& a, const DepthPoint& b);

// The shape in another rectangle: its corners become those of `to`, and all else keeps its place
// between them. A side without length puts all on its first corner.
DepthGeometry Fitted(const DepthGeometry& geometry, const DepthRect& to);

}  // namespace plenovia
