// Outlines, such as those of letters, as polygons of a depth map.
#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <vector>

#include "depthmap/depth_obj.h"

namespace plenovia {

struct OutlinePoint {
  double x = 0;
  double y = 0;
};
// A closed line; the last point leads to the first.
using Outline = std::vector<OutlinePoint>;

// What the outlines together fill by the even-odd rule, as polygons of this level with at most
// TDepthObj::kMaxVertices vertices each, of which no two overlap. Holes stay open: what lies below
// shows through them. Corners are rounded to pixels, and corners that lie within half a pixel of
// the line without them are left out. What has too many corners still is cut.
// Outlines may lie in one another, but not cross. Points beyond the 16-bit numbers are moved there.
std::vector<std::unique_ptr<TDepthObj>> OutlinePolygons(std::span<const Outline> outlines,
                                                        std::int32_t level);

// The points without those that lie at most `tolerance` off the line through the others: a closed
// line, by the method of Douglas and Peucker (Cartographica, 1973).
std::vector<DepthPoint> SimplifiedOutline(std::span<const DepthPoint> points, double tolerance);

}  // namespace plenovia
