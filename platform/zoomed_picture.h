// Pictures at the sizes at which windows show them.
#pragma once

#include <cstdint>
#include <span>

#include "platform/indexed_image.h"
#include "platform/region.h"

namespace plenovia {

// The side of a picture's side of `pixels` at `zoom` (above 0), in pixels, the fraction cut off.
int ZoomedSide(int pixels, double zoom);
// The picture's column or row that pixel `position` of the zoomed picture shows.
int UnzoomedPosition(int position, double zoom);

// The part `area` of the picture at `zoom`: every pixel has the colour of the nearest pixel of the
// picture, as 0xFFRRGGBB, row after row; black outside of the picture. `out` has the size of the
// area.
void RenderZoomed(const IndexedImage& picture, double zoom, const PixelRect& area,
                  std::span<std::uint32_t> out);

}  // namespace plenovia
