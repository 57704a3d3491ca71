// Sets of columns in one row of pixels.
#pragma once

#include <cstdint>
#include <vector>

namespace plenovia {

// The columns left..right-1.
struct Span {
  std::int64_t left = 0;
  std::int64_t right = 0;
  bool operator==(const Span&) const = default;
};

// From left to right; no span is empty, and no two overlap or touch.
using RowSpans = std::vector<Span>;

// Adds left..right-1 behind the other spans. Nothing happens when it is empty; `left` lies at or
// behind the end of the last span.
void AppendSpan(RowSpans& spans, std::int64_t left, std::int64_t right);

RowSpans UnionOf(const RowSpans& a, const RowSpans& b);
RowSpans IntersectionOf(const RowSpans& a, const RowSpans& b);
RowSpans DifferenceOf(const RowSpans& a, const RowSpans& b);  // what is in `a` and not in `b`

}  // namespace plenovia
