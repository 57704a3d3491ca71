// How the editor draws a depth object, row by row: in black and white, to the pixel what it covers.
#pragma once

#include <cstdint>

#include "depthmap/depth_obj.h"
#include "depthmap/level_labels.h"
#include "depthmap/row_canvas.h"

namespace plenovia {

// White with a black edge, or a black line. Of a curve, the half ellipse that runs counterclockwise
// from its first corner to its second. Nothing for texts and unknown kinds.
void PaintShapeRow(RowCanvas& canvas, const TDepthObj& object, std::int64_t y);
// The shape's edge or line only.
void PaintOutlineRow(RowCanvas& canvas, const TDepthObj& object, std::int64_t y);
// A line one pixel wide from `a` up to, but without, `b`.
void PaintLineRow(RowCanvas& canvas, const DepthPoint& a, const DepthPoint& b, std::int64_t y);
// The squares at the corners of a selected object.
void PaintMarksRow(RowCanvas& canvas, const DepthRect& rect, std::int64_t y);

// Where the middle of the base line of the object's label is, from the top left corner of its
// rectangle and on the map.
inline constexpr PixelPoint kLabelOffset{6, 12};
PixelPoint LabelPlace(const TDepthObj& object);
void PaintLabelRow(RowCanvas& canvas, const LevelLabel& label, const PixelPoint& place,
                   std::int64_t y);

// Everything that is drawn of the object lies in here.
PixelRect DrawnBox(const TDepthObj& object, const LevelLabel& label);

}  // namespace plenovia
