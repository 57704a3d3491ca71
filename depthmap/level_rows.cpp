#include "depthmap/level_rows.h"

#include <algorithm>
#include <cstddef>
#include <functional>
#include <limits>
#include <queue>
#include <utility>

namespace plenovia {

namespace {

constexpr std::int64_t kFirstRow = std::numeric_limits<std::int32_t>::min();
constexpr std::int64_t kLastRow = std::numeric_limits<std::int32_t>::max();

// A span of the object at a place in the stack, 0 at the top.
struct Piece {
  Span span;
  std::uint32_t place = 0;
};

struct LiesDeeper {
  bool operator()(const Piece& a, const Piece& b) const { return a.place > b.place; }
};

}  // namespace

void LevelRows::Forget() {
  made_ = false;
  objects_.clear();
  index_ = RowIndex();
}

void LevelRows::MakeIndex(const TDepthObj* head) {
  const std::lock_guard lock(making_);
  if (made_) return;
  objects_.clear();
  std::vector<RowIndex::Reach> reaches;
  for (const TLinkObj* node = head; node != nullptr; node = node->GetNext()) {
    const auto* object = static_cast<const TDepthObj*>(node);
    const Region* region = object->GetRegion();
    if (region == nullptr) continue;
    const PixelRect& box = region->Bounds();
    if (box.right <= 0 || box.left >= box.right || box.top >= box.bottom) continue;
    reaches.push_back({static_cast<std::int32_t>(std::max(box.top, kFirstRow)),
                       static_cast<std::int32_t>(std::min(box.bottom - 1, kLastRow)),
                       static_cast<std::uint32_t>(objects_.size())});
    objects_.push_back(object);
  }
  index_ = RowIndex(reaches);
  made_ = true;
}

void LevelRows::Sample(const TDepthObj* head, int y, std::span<std::int32_t> levels) {
  MakeIndex(head);
  const auto width = static_cast<std::int64_t>(levels.size());
  std::vector<Piece> pieces;
  index_.ForEachAt(y, [&](std::uint32_t place) {
    for (const Span& span : objects_[place]->GetRegion()->Spans(y)) {
      if (span.left < width && span.right > 0) pieces.push_back({span, place});
    }
  });
  std::sort(pieces.begin(), pieces.end(),
            [](const Piece& a, const Piece& b) { return a.span.left < b.span.left; });

  // From left to right: of the pieces that have begun and not ended, the topmost one shows up to
  // its end or to where the next one begins.
  std::priority_queue<Piece, std::vector<Piece>, LiesDeeper> begun;
  auto next = pieces.begin();
  for (std::int64_t x = 0; x < width;) {
    for (; next != pieces.end() && next->span.left <= x; ++next) begun.push(*next);
    while (!begun.empty() && begun.top().span.right <= x) begun.pop();
    std::int64_t end = next == pieces.end() ? width : std::min(width, next->span.left);
    std::int32_t level = 0;
    if (!begun.empty()) {
      end = std::min(end, begun.top().span.right);
      level = objects_[begun.top().place]->GetLevel();
    }
    std::fill(levels.begin() + x, levels.begin() + end, level);
    x = end;
  }
}

}  // namespace plenovia
