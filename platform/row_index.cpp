#include "platform/row_index.h"

#include <algorithm>
#include <limits>

namespace plenovia {

RowIndex::RowIndex(const std::vector<Reach>& things) {
  nodes_.reserve(things.size());
  for (const Reach& thing : things) nodes_.push_back({thing, 0});
  std::sort(nodes_.begin(), nodes_.end(),
            [](const Node& a, const Node& b) { return a.reach.first < b.reach.first; });
  FillLast(0, nodes_.size());
}

std::int32_t RowIndex::FillLast(std::size_t begin, std::size_t end) {
  if (begin == end) return std::numeric_limits<std::int32_t>::min();
  const std::size_t middle = begin + (end - begin) / 2;
  const std::int32_t before = FillLast(begin, middle);
  const std::int32_t after = FillLast(middle + 1, end);
  nodes_[middle].lastInRange = std::max({before, nodes_[middle].reach.last, after});
  return nodes_[middle].lastInRange;
}

}  // namespace plenovia
