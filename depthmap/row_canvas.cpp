#include "depthmap/row_canvas.h"

#include <algorithm>
#include <cstddef>

namespace plenovia {

namespace {

constexpr std::int64_t kBits = 64;
constexpr std::uint64_t kAll = ~std::uint64_t{0};

}  // namespace

RowCanvas::RowCanvas(int width)
    : width_(width), words_(static_cast<std::size_t>((width + kBits - 1) / kBits)) {
  if (width % kBits != 0) words_.back().painted = kAll << (width % kBits);
}

// Calls visit(number of a word, mask of its columns) until one call is true.
template <class Visit>
bool RowCanvas::AnyWord(Span columns, Visit visit) const {
  const std::int64_t left = std::max<std::int64_t>(columns.left, 0);
  const std::int64_t right = std::min<std::int64_t>(columns.right, width_);
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

void RowCanvas::Paint(const Span& columns, Ink ink) {
  AnyWord(columns, [&](std::size_t i, std::uint64_t mask) {
    Word& word = words_[i];
    if (ink == Ink::kBlack) word.black |= mask & ~word.painted;
    word.painted |= mask;
    return false;
  });
}

void RowCanvas::Paint(const RowSpans& columns, Ink ink) {
  for (const Span& span : columns) Paint(span, ink);
}

void RowCanvas::Paint(const RowCanvas& behind) {
  for (std::size_t i = 0; i < words_.size(); ++i) {
    words_[i].black |= behind.words_[i].black & ~words_[i].painted;
    words_[i].painted |= behind.words_[i].painted;
  }
}

bool RowCanvas::IsFull() const {
  return std::all_of(words_.begin(), words_.end(),
                     [](const Word& word) { return word.painted == kAll; });
}

bool RowCanvas::HasRoom(const Span& columns) const {
  return AnyWord(columns, [this](std::size_t i, std::uint64_t mask) {
    return (mask & ~words_[i].painted) != 0;
  });
}

void RowCanvas::Read(int first, std::span<std::uint32_t> pixels) const {
  std::size_t column = static_cast<std::size_t>(first);
  for (std::uint32_t& pixel : pixels) {
    const Word& word = words_[column / kBits];
    const std::size_t bit = column % kBits;
    const bool black = (word.black >> bit & 1) != 0;
    const bool painted = (word.painted >> bit & 1) != 0;
    pixel = black ? kBlackPixel : painted ? kWhitePixel : kNothingPixel;
    ++column;
  }
}

}  // namespace plenovia
