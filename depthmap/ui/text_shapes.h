// Text as polygons of a depth map.
#pragma once

#include <QString>
#include <memory>
#include <vector>

#include "depthmap/depth_obj.h"

namespace plenovia {

struct TextStyle {
  QString text;
  QString family;   // of the font; empty: the program's
  int size = 72;    // the height of the font in pixels of the map
  int spacing = 0;  // pixels between letters, beside the font's own
  bool bold = true;
};

inline constexpr int kLeastTextSize = 8;
inline constexpr int kGreatestTextSize = 2000;
inline constexpr int kGreatestSpacing = 200;
inline constexpr int kLongestText = 200;  // letters

// The letters as OutlinePolygons() makes them, the box around them with its corner at (0, 0). Empty
// when nothing is to be seen of them.
std::vector<std::unique_ptr<TDepthObj>> TextShapes(const TextStyle& style, std::int32_t level);

// The box around shapes; empty at (0, 0) when there are none.
PixelRect BoxAround(const std::vector<std::unique_ptr<TDepthObj>>& shapes);

}  // namespace plenovia
