// How the editor shows a map.
#pragma once

#include <cstdint>

#include "depthmap/map_scale.h"

namespace plenovia {

enum class MapView {
  kOutlines,  // white shapes with black edges
  kShaded,    // every pixel in the gray of its level
  kBoth,      // that, with edges
};

// The view that a key for all of them brings after this one.
constexpr MapView NextView(MapView view) {
  return view == MapView::kOutlines ? MapView::kShaded
         : view == MapView::kShaded ? MapView::kBoth
                                    : MapView::kOutlines;
}

struct MapLook {
  MapView view = MapView::kOutlines;
  MapScale scale;
  std::int32_t lightest = 255;  // the level that is shaded white
  bool operator==(const MapLook&) const = default;

  bool IsShaded() const { return view != MapView::kOutlines; }
  bool HasEdges() const { return view != MapView::kShaded; }
  // Lines between the pixels of the map.
  bool HasGrid() const { return scale.Times() >= 8; }
};

}  // namespace plenovia
