// The level numbers that the editor writes on its objects.
#pragma once

#include <cstdint>
#include <vector>

#include "platform/row_spans.h"
#include "platform/shape_rows.h"

namespace plenovia {

// A written number, black on a white box: its black pixels relative to the middle of its base line.
struct LevelLabel {
  std::int64_t left = 0;
  std::int64_t right = 0;
  std::int64_t top = 0;
  std::vector<RowSpans> rows;  // of the box, from its top downwards

  std::int64_t Bottom() const { return top + static_cast<std::int64_t>(rows.size()); }
};

class LevelLabels {
 public:
  virtual ~LevelLabels() = default;
  // The label of any 32-bit level. The reference stays valid.
  virtual const LevelLabel& Label(std::int32_t level) = 0;
};

}  // namespace plenovia
