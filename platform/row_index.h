// Finds the things that reach over a row of pixels among very many.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace plenovia {

// An interval tree laid out in an array sorted by the first row: the middle element of a range is
// the root of that range, and holds how far down the range reaches (Cormen et al., Introduction to
// Algorithms, chapter "Augmenting Data Structures"). Built in O(n log n), 16 bytes a thing.
class RowIndex {
 public:
  // The thing `id` reaches over the rows first..last, both included.
  struct Reach {
    std::int32_t first = 0;
    std::int32_t last = 0;
    std::uint32_t id = 0;
  };

  RowIndex() = default;
  explicit RowIndex(const std::vector<Reach>& things);

  // Calls visit(id) for each thing that reaches over row `y`, in no order that means anything.
  template <class Visit>
  void ForEachAt(std::int64_t y, Visit&& visit) const {
    VisitRange(0, nodes_.size(), y, visit);
  }

 private:
  struct Node {
    Reach reach;
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
      if (node.reach.first > y) return;
      if (node.reach.last >= y) visit(node.reach.id);
      begin = middle + 1;
    }
  }

  std::vector<Node> nodes_;
};

}  // namespace plenovia
