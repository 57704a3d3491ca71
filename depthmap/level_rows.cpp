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

// The columns left..right-1 of the object at a place in the stack, which is 0 at the top.
struct Piece {
  std::int32_t left = 0;
  std::int32_t right = 0;
  std::uint32_t place = 0;
  std::int32_t level = 0;
};

struct LiesDeeper {
  bool operator()(const Piece& a, const Piece& b) const { return a.place > b.place; }
};

}  // namespace

void LevelRows::Forget() {
  made_ = false;
  objects_.clear();
  index_ = IntervalTree();
}

void LevelRows::MakeIndex(const TDepthObj* head) {
  const std::lock_guard lock(making_);
  if (made_) return;
  objects_.clear();
  std::vector<IntervalTree::Interval> rows;
  for (const TLinkObj* node = head; node != nullptr; node = node->GetNext()) {
    const auto* object = static_cast<const TDepthObj*>(node);
    const Region* region = object->GetRegion();
    if (region == nullptr) continue;
    const PixelRect& box = region->Bounds();
    if (box.right <= 0 || box.left >= box.right || box.top >= box.bottom) continue;
    rows.push_back({static_cast<std::int32_t>(std::max(box.top, kFirstRow)),
                    static_cast<std::int32_t>(std::min(box.bottom - 1, kLastRow)),
                    static_cast<std::uint32_t>(objects_.size())});
    objects_.push_back({object, region});
  }
  index_ = IntervalTree(rows);
  made_ = true;
}

void LevelRows::Sample(const TDepthObj* head, int y, std::span<std::int32_t> levels) {
  MakeIndex(head);
  const auto width = static_cast<std::int32_t>(levels.size());
  std::vector<Piece> pieces;
  RowSpans spans;
  // The topmost place known to cover the whole row: nothing below it shows.
  std::uint32_t cover = std::numeric_limits<std::uint32_t>::max();
  index_.ForEachAt(y, [&](std::uint32_t place) {
    if (place > cover) return;
    const auto& [object, region] = objects_[place];
    region->Spans(y, spans);
    for (const Span& span : spans) {
      if (span.left >= width || span.right <= 0) continue;
      if (span.left <= 0 && span.right >= width) cover = place;
      pieces.push_back({static_cast<std::int32_t>(std::max<std::int64_t>(span.left, 0)),
                        static_cast<std::int32_t>(std::min<std::int64_t>(span.right, width)), place,
                        object->GetLevel()});
    }
  });
  std::erase_if(pieces, [cover](const Piece& piece) { return piece.place > cover; });
  std::sort(pieces.begin(), pieces.end(),
            [](const Piece& a, const Piece& b) { return a.left < b.left; });

  // From left to right: of the pieces that have begun and not ended, the topmost one shows up to
  // its end or to where one begins that lies higher.
  std::priority_queue<Piece, std::vector<Piece>, LiesDeeper> begun;
  auto next = pieces.begin();
  for (std::int32_t x = 0; x < width;) {
    for (; next != pieces.end() && next->left <= x; ++next) begun.push(*next);
    while (!begun.empty() && begun.top().right <= x) begun.pop();
    std::int32_t end = width;
    std::int32_t level = 0;
    if (!begun.empty()) {
      const Piece shown = begun.top();
      end = shown.right;
      level = shown.level;
      for (; next != pieces.end() && next->left < end && next->place > shown.place; ++next) {
        if (next->right > end) begun.push(*next);
      }
    }
    if (next != pieces.end()) end = std::min(end, next->left);
    std::fill(levels.begin() + x, levels.begin() + end, level);
    x = end;
  }
}

}  // namespace plenovia
