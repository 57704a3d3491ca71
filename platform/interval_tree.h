// Finds the intervals that hold a number, such as the rows that shapes cover, among very many.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace plenovia {

// An interval tree laid out in an array sorted by `first`: the middle element of a range is the
// root of that range, and holds the highest `last` in it (Cormen et al., Introduction to
// Algorithms, chapter "Augmenting Data Structures"). Built in O(n log n), 16 bytes an interval.
class IntervalTree {
 public:
  // From `first` to `last`, both included. `id` is the caller's.
  struct Interval {
    std::int32_t first = 0;
    std::int32_t last = 0;
    std::uint32_t id = 0;
  };

  IntervalTree() = default;
  explicit IntervalTree(const std::vector<Interval>& intervals);

  // Calls visit(id) for each interval that holds `y`, in no particular order.
  template <class Visit>
  void ForEachAt(std::int64_t y, Visit&& visit) const {
    VisitRange(0, nodes_.size(), y, visit);
  }

 private:
  struct Node {
    Interval interval;
    std::int32_t lastInRange = 0;
  };

  std::int32_t FillLast(std::size_t begin, std::size_t end);

  template <class Visit>
  void VisitRange(std::size_t begin, std::size_t end, std::int64_t y, Visit& visit) const {
    while (begin < end) {
      const std::size_t middle = begin + (end - begin) / 2;
      const Node& node = nodes_[middle];
      if (node.lastInRange < y) return;
      VisitRange(begin, middle, y, visit);
      if (node.interval.first > y) return;
      if (node.interval.last >= y) visit(node.interval.id);
      begin = middle + 1;
    }
  }

  std::vector<Node> nodes_;
};

}  // namespace plenovia
