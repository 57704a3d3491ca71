// What can be done to the selected objects of a map together.
#pragma once

#include <cstdint>
#include <memory>
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

// Each of these is one step, and leaves the background box as it is unless it says otherwise.

// Moves the selected objects, the background box too.
void ShiftSelection(TDepthList& list, const MapWay& way);

// Right above this object, or the next one below it that is not selected; above or below all
// others. Among themselves they keep their order.
void PutSelectionAbove(TDepthList& list, const TDepthObj* below);
void PutSelectionOnTop(TDepthList& list);
void PutSelectionAtBottom(TDepthList& list);

// An object like this one that is in no list.
std::unique_ptr<TDepthObj> Copied(const TDepthObj& object);
// Copies of the selected objects, topmost first.
std::vector<std::unique_ptr<TDepthObj>> CopiedSelection(const TDepthList& list);

// How far copies lie from what they are copies of, in pixels of the map.
inline constexpr MapWay kCopyOffset{10, 10};
// Puts copies of the selected objects on top, beside where they are, and selects the copies.
void DuplicateSelection(TDepthList& list);
// Puts the objects, topmost first, on top and selects them. Where the same shape lies already, all
// of them lie beside it.
void PasteObjects(TDepthList& list, std::vector<std::unique_ptr<TDepthObj>> objects);

}  // namespace plenovia
