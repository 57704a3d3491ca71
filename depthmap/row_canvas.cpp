#include "depthmap/row_canvas.h"

#include <algorithm>
#include <bit>
#include <cstddef>

namespace plenovia {

namespace {

constexpr std::int64_t kBits = 64;
constexpr std::uint64_t kAll = ~std::uint64_t{0};

// Calls visit(first, end) for each run of ones.
template <class Visit>
void ForEachRun(std::uint64_t bits, Visit visit) {
  while (bits != 0) {
    const int first = std::countr_zero(bits);
    const int length = std::countr_one(bits >> first);
    visit(static_cast<std::size_t>(first),
          static_cast<std::size_t>(first) + static_cast<std::size_t>(length));
    if (first + length == kBits) return;
    bits &= kAll << (first + length);
  }
}

}  // namespace

RowCanvas::RowCanvas(const Span& columns)
    : columns_(columns),
      painted_(static_cast<std::size_t>((columns.right - columns.left + kBits - 1) / kBits)),
      pixels_(painted_.size() * kBits) {
  const std::int64_t over = (columns.right - columns.left) % kBits;
  if (over != 0) painted_.back() = kAll << over;
}

// Calls visit(number of a word, mask of its columns) until one call is true.
template <class Visit>
bool RowCanvas::AnyWord(Span columns, Visit visit) const {
  const std::int64_t left = std::max(columns.left, columns_.left) - columns_.left;
  const std::int64_t right = std::min(columns.right, columns_.right) - columns_.left;
  if (left >= right) return false;
  const std::int64_t last = (right - 1) / kBits;
  for (std::int64_t i = left / kBits; i <= last; ++i) {
    std::uint64_t mask = kAll;
    if (i == left / kBits) mask <<= left % kBits;
    if (i == last) mask &= kAll >> (kBits - 1 - (right - 1) % kBits);
    if (visit(static_cast<std::size_t>(i), mask)) return true;
  }
  return false;
}

void RowCanvas::Paint(const Span& columns, Pixel colour) {
  AnyWord(columns, [&](std::size_t i, std::uint64_t mask) {
    const std::span word = std::span(pixels_).subspan(i * kBits, kBits);
    ForEachRun(mask & ~painted_[i], [&](std::size_t first, std::size_t end) {
      std::ranges::fill(word.subspan(first, end - first), colour);
    });
    painted_[i] |= mask;
    return false;
  });
}

void RowCanvas::Paint(const RowSpans& columns, Pixel colour) {
  for (const Span& span : columns) Paint(span, colour);
}

void RowCanvas::Paint(const RowCanvas& behind) {
  for (std::size_t i = 0; i < painted_.size(); ++i) {
    const std::span word = std::span(pixels_).subspan(i * kBits, kBits);
    const std::span from = std::span(behind.pixels_).subspan(i * kBits, kBits);
    ForEachRun(behind.painted_[i] & ~painted_[i], [&](std::size_t first, std::size_t end) {
      std::ranges::copy(from.subspan(first, end - first), word.subspan(first).begin());
    });
    painted_[i] |= behind.painted_[i];
  }
}

bool RowCanvas::IsFull() const {
  return std::ranges::all_of(painted_, [](std::uint64_t word) { return word == kAll; });
}

bool RowCanvas::HasRoom(const Span& columns) const {
  return AnyWord(columns,
                 [this](std::size_t i, std::uint64_t mask) { return (mask & ~painted_[i]) != 0; });
}

void RowCanvas::Read(std::int64_t first, std::span<Pixel> pixels) const {
  const auto from = static_cast<std::size_t>(first - columns_.left);
  std::ranges::copy(std::span(pixels_).subspan(from, pixels.size()), pixels.begin());
}

}  // namespace plenovia
