// Where a picture goes on a page, and how its dots become the printer's.
#pragma once

#include <cstdint>
#include <span>

#include "platform/indexed_image.h"

namespace plenovia {

// In the printer's dots, counted from the top left corner of what it can print on.
struct PrintLayout {
  int left = 0;
  int top = 0;
  int width = 0;     // at least 1
  int height = 0;    // at least 1
  bool fits = true;  // the picture has fewer dots than the page, in both directions
};

// As large as the page allows, all four sides at least 20 dots from its edges.
PrintLayout LayOutOnPage(const IndexedImage& picture, int pageWidth, int pageHeight);

// The rows from `firstRow` on of the picture scaled to the layout's size, as 0xFFRRGGBB: every dot
// has the colour of the one pixel it lies in. `out` holds whole rows.
void RenderForPrint(const IndexedImage& picture, const PrintLayout& layout, int firstRow,
                    std::span<std::uint32_t> out);

}  // namespace plenovia
