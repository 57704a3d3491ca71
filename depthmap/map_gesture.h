// What the mouse does to the objects of a map between a press and its release.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>

#include "depthmap/depth_list.h"

namespace plenovia {

struct GestureKeys {
  bool shift = false;
  bool control = false;
  bool alt = false;
};

// One that is destroyed without Finish() or Cancel() leaves the map as it is then.
class MapGesture {
 public:
  virtual ~MapGesture() = default;
  // The mouse moved, as counted in the pixels of the map.
  virtual void MoveTo(const DepthPoint& at, const GestureKeys& keys) = 0;
  // The button was released.
  virtual void Finish() {}
  // Leaves the map as it was at the press.
  virtual void Cancel() = 0;
  // The frame to be shown, if there is one.
  virtual std::optional<DepthRect> Frame() const { return std::nullopt; }
};

struct GesturePress {
  DepthPoint at;
  GestureKeys keys;
  std::int64_t tolerance = 4;  // as PickObject has it
};

// A press of the select tool: selects the object there, the background box too, or with Shift adds
// it to the selection or takes it out, or with Alt reaches the one that is covered. On empty ground
// a drag selects what lies in its frame.
std::unique_ptr<MapGesture> PressToSelect(TDepthList& list, const GesturePress& press);

// A press of the move tool: the same, but empty ground selects nothing, and a drag on an object
// moves all that is selected, with Shift only along an axis or a diagonal. With Ctrl the background
// box is an object like any other.
std::unique_ptr<MapGesture> PressToMove(TDepthList& list, const GesturePress& press);

}  // namespace plenovia
