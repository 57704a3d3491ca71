// An edit of a depth map such as the editor makes, chosen by chance.
#pragma once

#include <memory>
#include <utility>

#include "depthmap/depth_list.h"
#include "platform/random.h"

namespace plenovia {

// `added` is what an addition puts on top, `hit` (or null) what a click picks.
inline void EditAtRandom(TDepthList& list, Random& random, std::unique_ptr<TDepthObj> added,
                         const TDepthObj* hit) {
  switch (random.Int(0, 7)) {
    case 0:
      list.AddObject(std::move(added));
      break;
    case 1:
      list.CmDelete();
      break;
    case 2:
      list.CmMoveUp();
      break;
    case 3:
      list.CmMoveDown();
      break;
    case 4:
      list.ApplyObjectLevel(hit);
      break;
    case 5:
      list.Select(hit);
      break;
    default:
      if (list.Selected() == nullptr) break;
      list.MoveSelectedTo(list.Selected()->GetRect().Shifted(random.Int(-9, 9), random.Int(-9, 9)));
  }
}

}  // namespace plenovia
