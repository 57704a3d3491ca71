#include "platform/interval_tree.h"

#include <algorithm>
#include <limits>

namespace plenovia {

IntervalTree::IntervalTree(const std::vector<Interval>& intervals) {
  nodes_.reserve(intervals.size());
  for (const Interval& interval : intervals) nodes_.push_back({interval, 0});
  std::sort(nodes_.begin(), nodes_.end(),
            [](const Node& a, const Node& b) { return a.interval.first < b.interval.first; });
  FillLast(0, nodes_.size());
}

std::int32_t IntervalTree::FillLast(std::size_t begin, std::size_t end) {
  if (begin == end) return std::numeric_limits<std::int32_t>::min();
  const std::size_t middle = begin + (end - begin) / 2;
  const std::int32_t before = FillLast(begin, middle);
  const std::int32_t after = FillLast(middle + 1, end);
  nodes_[middle].lastInRange = std::max({before, nodes_[middle].interval.last, after});
  return nodes_[middle].lastInRange;
}

}  // namespace plenovia
