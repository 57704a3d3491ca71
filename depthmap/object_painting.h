// How the editor draws a depth object, row by row. Rows and columns are those shown; at the scale
// one to one they are the map's, and what is drawn is to the pixel what the object covers.
#pragma once

#include <cstdint>

#include "depthmap/depth_obj.h"
#include "depthmap/level_labels.h"
#include "depthmap/map_look.h"
#include "depthmap/row_canvas.h"

namespace plenovia {

// A gray, from black at level 0 to white at `lightest` and from there on.
Pixel ShadeOf(std::int32_t level, std::int32_t lightest = 255);
// What stands out from the shades: marks, and the shape that is being drawn.
inline constexpr Pixel kAccentPixel = 0xFFFF6A00;
inline Pixel MarkPixel(const MapLook& look) {
  return look.IsShaded() ? kAccentPixel : kBlackPixel;
}

// As outlines: white with a black edge, or a black line; of a curve, the half ellipse that runs
// counterclockwise from its first corner to its second; nothing for texts. Shaded: everything that
// the object covers. Nothing for unknown kinds.
void PaintShapeRow(RowCanvas& canvas, const TDepthObj& object, std::int64_t y,
                   const MapLook& look = {});
// The shape's edge or line only.
void PaintOutlineRow(RowCanvas& canvas, const TDepthObj& object, std::int64_t y,
                     const MapScale& scale, Pixel colour);
// A line one shown pixel wide from `a` up to, but without, `b`.
void PaintLineRow(RowCanvas& canvas, const PixelPoint& a, const PixelPoint& b, std::int64_t y,
                  Pixel colour);
// The squares at the corners of a selected object.
void PaintMarksRow(RowCanvas& canvas, const DepthRect& rect, std::int64_t y,
                   const MapLook& look = {});

// Where the middle of the base line of the object's label is, from the top left corner of its
// rectangle, in shown pixels.
inline constexpr PixelPoint kLabelOffset{6, 12};
PixelPoint LabelPlace(const TDepthObj& object, const MapScale& scale = {});
PixelRect LabelBox(const LevelLabel& label, const PixelPoint& place);
void PaintLabelRow(RowCanvas& canvas, const LevelLabel& label, const PixelPoint& place,
                   std::int64_t y);

// What reaches out of an object: its marks, and lines where the map is reduced.
inline constexpr std::int64_t kMarkReach = 2;
// The same of a handle, which has a rim.
inline constexpr std::int64_t kHandleReach = kMarkReach + 1;
// Where the object's rectangle is shown, with room for its marks.
PixelRect ShownBox(const TDepthObj& object, const MapScale& scale = {});

}  // namespace plenovia
