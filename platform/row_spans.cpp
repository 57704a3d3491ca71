#include "platform/row_spans.h"

#include <algorithm>
#include <cstddef>
#include <limits>

namespace plenovia {

namespace {

// Walks over the edges of both sets at once, keeping the columns for which keep(in a, in b) holds.
template <class Keep>
RowSpans Combine(const RowSpans& a, const RowSpans& b, Keep keep) {
  const auto edge = [](const RowSpans& spans, std::size_t i) {
    if (i == 2 * spans.size()) return std::numeric_limits<std::int64_t>::max();
    return i % 2 == 0 ? spans[i / 2].left : spans[i / 2].right;
  };
  RowSpans result;
  std::size_t i = 0;
  std::size_t j = 0;
  std::int64_t from = 0;
  while (i < 2 * a.size() || j < 2 * b.size()) {
    const std::int64_t x = std::min(edge(a, i), edge(b, j));
    if (keep(i % 2 == 1, j % 2 == 1)) AppendSpan(result, from, x);
    if (edge(a, i) == x) ++i;
    if (edge(b, j) == x) ++j;
    from = x;
  }
  return result;
}

}  // namespace

void AppendSpan(RowSpans& spans, std::int64_t left, std::int64_t right) {
  if (left >= right) return;
  if (!spans.empty() && spans.back().right == left) {
    spans.back().right = right;
  } else {
    spans.push_back({left, right});
  }
}

RowSpans UnionOf(const RowSpans& a, const RowSpans& b) {
  return Combine(a, b, [](bool inA, bool inB) { return inA || inB; });
}

RowSpans IntersectionOf(const RowSpans& a, const RowSpans& b) {
  return Combine(a, b, [](bool inA, bool inB) { return inA && inB; });
}

RowSpans DifferenceOf(const RowSpans& a, const RowSpans& b) {
  return Combine(a, b, [](bool inA, bool inB) { return inA && !inB; });
}

}  // namespace plenovia
