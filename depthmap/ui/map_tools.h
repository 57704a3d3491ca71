// The tools of the depth-map editor and its other commands, by the numbers of their buttons.
#pragma once

#include "depthmap/depth_obj.h"

namespace plenovia {

enum MapTool {
  kSelectTool = 1251,
  kMoveTool = 1252,
  kGetLevelTool = 1253,
  kApplyLevelTool = 1254,
  kLineTool = 1256,
  kCurveTool = 1257,
  kSquareBoxTool = 1258,
  kRoundBoxTool = 1259,
  kPolygonTool = 1260,
  kCircleTool = 1261,
};

enum MapCommand {
  kSetLevel = 1262,
  kMoveObjectUp = 1263,
  kMoveObjectDown = 1264,
  kDeleteObject = 1265,
};

constexpr bool IsDrawingTool(int id) {
  return id >= kLineTool && id <= kCircleTool;
}
constexpr bool IsMapTool(int id) {
  return (id >= kSelectTool && id <= kApplyLevelTool) || IsDrawingTool(id);
}
// What a drawing tool draws.
constexpr DepthObjKind KindOfTool(int id) {
  return static_cast<DepthObjKind>(id - kLineTool + LineObj);
}

}  // namespace plenovia
