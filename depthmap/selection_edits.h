// What can be done to the selected objects of a map together.
#pragma once

#include <cstdint>
#include <utility>
#include <vector>

#include "depthmap/depth_list.h"
#include "depthmap/snapped_way.h"

namespace plenovia {

// The same shape elsewhere. As a whole it stops at the ends of the 32-bit numbers.
DepthGeometry Shifted(const DepthGeometry& geometry, const MapWay& way);

// The selected objects as they were when this was made, on their way.
class ShiftedSelection {
 public:
  // `list` is borrowed; its selection must not lose objects.
  explicit ShiftedSelection(TDepthList& list);
  // Moves them, counted from where they were.
  void ShiftTo(const MapWay& way);

 private:
  TDepthList& list_;
  std::vector<std::pair<const TDepthObj*, DepthGeometry>> objects_;
};

// Moves the selected objects; one step.
void ShiftSelection(TDepthList& list, const MapWay& way);

}  // namespace plenovia
