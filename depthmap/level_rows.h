// Whole rows of levels from a stack of depth objects.
#pragma once

#include <cstdint>
#include <mutex>
#include <span>
#include <vector>

#include "depthmap/depth_obj.h"
#include "platform/interval_tree.h"

namespace plenovia {

// An index of the objects by the rows that they reach over, made on first use. A row then costs
// what the spans on it cost, however many objects the map has.
class LevelRows {
 public:
  // The index made from these objects must not be used once they change, other than in level.
  void Forget();

  // Writes the levels of (0, y), (1, y), ... for the stack that starts at `head` (or is empty).
  // May be called on several threads at once, always with the same stack since Forget().
  void Sample(const TDepthObj* head, int y, std::span<std::int32_t> levels);

 private:
  void MakeIndex(const TDepthObj* head);

  struct Entry {
    const TDepthObj* object = nullptr;
    const Region* region = nullptr;
  };

  std::mutex making_;
  bool made_ = false;
  std::vector<Entry> objects_;  // topmost first
  IntervalTree index_;          // of positions in objects_
};

}  // namespace plenovia
