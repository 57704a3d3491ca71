// How large the editor shows a map, and which shown pixel is which pixel of the map.
#pragma once

#include <cstdint>
#include <string>

#include "depthmap/depth_obj.h"
#include "platform/row_spans.h"
#include "platform/shape_rows.h"

namespace plenovia {

// Enlarged, each pixel of the map is a square of shown ones. Reduced by n, each shown pixel is the
// middle one of n by n pixels of the map. Rows and columns go by the same rule.
class MapScale {
 public:
  static constexpr int kGreatest = 16;  // times, both ways

  MapScale() = default;  // one to one
  // `times` 1..16 enlarges, -2..-16 reduces to 1/2..1/16; anything else is one to one.
  explicit MapScale(int times);

  bool operator==(const MapScale&) const = default;
  bool IsReduced() const { return times_ < 0; }
  bool IsOne() const { return times_ == 1; }
  // Shown pixels for one of the map; 1 when it is reduced.
  int Times() const { return times_ > 0 ? times_ : 1; }
  // Shown pixels for one of the map, in either direction.
  double Factor() const { return times_ > 0 ? times_ : -1.0 / times_; }
  // "200 %" or "1/2"
  std::string Text() const;

  // The next one of the steps from 1/8 to 16; itself at the end.
  MapScale Larger() const;
  MapScale Smaller() const;
  // The largest step at which a map of this size fits `width` by `height` shown pixels, or 1/8.
  static MapScale Fitting(std::int64_t mapWidth, std::int64_t mapHeight, int width, int height);

  // The pixel of the map that is seen at a shown one.
  std::int64_t MapPixel(std::int64_t shown) const;
  // The first shown pixel at which `pixel` of the map or one behind it is seen.
  std::int64_t ShownEdge(std::int64_t pixel) const;
  // The middle of where a pixel of the map is shown, also of one that reducing passes over.
  std::int64_t ShownMiddle(std::int64_t pixel) const;
  PixelPoint ShownMiddle(const DepthPoint& point) const;

  // What of a row or an area of the map is seen.
  Span Shown(const Span& columns) const;
  PixelRect Shown(const PixelRect& area) const;

 private:
  int times_ = 1;  // below 0: reduced
};

}  // namespace plenovia
