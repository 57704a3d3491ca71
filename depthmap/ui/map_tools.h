// Which commands are the depth-map editor's, and what its tools draw.
#pragma once

#include "depthmap/depth_obj.h"
#include "documents/ui/commands.h"

namespace plenovia {

constexpr bool IsDrawingTool(int id) {
  return id >= kLineTool && id <= kCircleTool;
}
constexpr bool IsMapTool(int id) {
  return (id >= kSelectTool && id <= kApplyLevelTool) || IsDrawingTool(id);
}
// Tools that select objects and change them by their handles.
constexpr bool PicksObjects(int id) {
  return id == kSelectTool || id == kMoveTool;
}
constexpr bool IsMapViewCommand(int id) {
  return id == kCmZoomIn || id == kCmZoomOut || id == kCmActualSize || id == kCmZoomToFit ||
         id == kCmMapView;
}
constexpr bool IsMapMakingCommand(int id) {
  return id == kTextTool || id == kCmMapSteps;
}
// What is done with selected shapes.
constexpr bool IsShapeCommand(int id) {
  return (id >= kShapesToTop && id <= kSpreadDown) ||
         (id >= kMoveObjectUp && id <= kDeleteObject) || id == kCmCut || id == kCmCopy ||
         id == kCmDuplicate;
}
constexpr bool IsMapCommand(int id) {
  return IsMapTool(id) || IsShapeCommand(id) || IsMapViewCommand(id) || IsMapMakingCommand(id) ||
         id == kSetLevel || id == kCmUndo || id == kCmRedo || id == kCmSelectAll;
}
// What a drawing tool draws.
constexpr DepthObjKind KindOfTool(int id) {
  return static_cast<DepthObjKind>(id - kLineTool + LineObj);
}

}  // namespace plenovia
