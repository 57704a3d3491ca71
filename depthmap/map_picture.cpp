#include "depthmap/map_picture.h"

#include <algorithm>
#include <bit>
#include <iterator>
#include <limits>
#include <tuple>
#include <unordered_map>
#include <utility>

#include "depthmap/level_choice.h"
#include "depthmap/object_painting.h"

namespace plenovia {

namespace {

constexpr std::size_t kWordBits = 64;

IntervalTree::Interval RowsOf(const PixelRect& box, std::size_t id) {
  constexpr std::int64_t kLow = std::numeric_limits<std::int32_t>::min();
  constexpr std::int64_t kHigh = std::numeric_limits<std::int32_t>::max();
  return {static_cast<std::int32_t>(std::clamp(box.top, kLow, kHigh)),
          static_cast<std::int32_t>(std::clamp(box.bottom - 1, kLow, kHigh)),
          static_cast<std::uint32_t>(id)};
}

// The box around both; one that is empty counts for nothing.
PixelRect UnionOf(const PixelRect& a, const PixelRect& b) {
  if (a.left >= a.right || a.top >= a.bottom) return b;
  if (b.left >= b.right || b.top >= b.bottom) return a;
  return {std::min(a.left, b.left), std::min(a.top, b.top), std::max(a.right, b.right),
          std::max(a.bottom, b.bottom)};
}

// Maps of few levels are shaded with all grays too.
std::int32_t LightestFor(std::int32_t highest) {
  constexpr std::int32_t kLeast = 8;
  return std::clamp(highest, kLeast, kHighestLevel);
}

}  // namespace

void MapPicture::SetView(const PixelRect& view, const MapLook& look) {
  const bool sameLook = look.view == look_.view && look.scale == look_.scale;
  if (view == view_ && sameLook) return;
  const bool sameRows = sameLook && view.left == view_.left && view.right == view_.right;
  if (!sameLook) reach_ = {};
  if (!sameRows) follows_ = false;
  std::vector<Layers> rows(static_cast<std::size_t>(view.bottom - view.top));
  if (sameRows) {
    const std::int64_t end = std::min(view.bottom, view_.bottom);
    for (std::int64_t y = std::max(view.top, view_.top); y < end; ++y) {
      rows[static_cast<std::size_t>(y - view.top)] =
          std::move(rows_[static_cast<std::size_t>(y - view_.top)]);
    }
  }
  rows_ = std::move(rows);
  view_ = view;
  look_.view = look.view;
  look_.scale = look.scale;
}

MapPicture::Shown MapPicture::Show(const TDepthObj& object) {
  Shown shown{&object, &labels_.Label(object.GetLevel()), LabelPlace(object, look_.scale),
              ShownBox(object, look_.scale)};
  const PixelRect label = LabelBox(*shown.label, shown.labelPlace);
  shown.box = {std::min(shown.box.left, label.left), std::min(shown.box.top, label.top),
               std::max(shown.box.right, label.right), std::max(shown.box.bottom, label.bottom)};
  return shown;
}

void MapPicture::FollowList() {
  if (follows_ && edition_ == list_.Edition()) return;
  const bool isFirst = !std::exchange(follows_, true);
  edition_ = list_.Edition();
  others_.clear();
  above_ = 0;
  std::int32_t highest = 0;
  for (const TDepthObj* object = list_.Head(); object != nullptr;
       object = TDepthList::Below(*object)) {
    const Shown shown = Show(*object);
    IncludeLabel(shown);
    highest = std::max(highest, object->GetLevel());
    if (object == list_.Selected()) above_ = others_.size();
    others_.push_back(shown);
  }
  const std::int32_t lightest = std::exchange(look_.lightest, LightestFor(highest));
  if (look_.IsShaded()) {
    ThinLabels(others_);
    stale_ = UnionOf(stale_, lightest == look_.lightest ? ChangedLabels() : view_);
    if (isFirst) stale_ = {};
  }
  const auto isLeftOut = [this](const Shown& shown) {
    return shown.object == list_.Selected() || shown.box.right <= view_.left ||
           shown.box.left >= view_.right;
  };
  const auto above = others_.begin() + static_cast<std::ptrdiff_t>(above_);
  above_ = static_cast<std::size_t>(
      std::count_if(others_.begin(), above, [&](const Shown& shown) { return !isLeftOut(shown); }));
  std::erase_if(others_, isLeftOut);
  std::vector<IntervalTree::Interval> rows;
  for (std::size_t place = 0; place < others_.size(); ++place) {
    rows.push_back(RowsOf(others_[place].box, place));
  }
  index_ = IntervalTree(rows);
  onRow_.resize(others_.size() / kWordBits + 1);
  for (Layers& row : rows_) row.made = false;
}

PixelRect MapPicture::ChangedLabels() {
  const auto comesBefore = [](const PixelRect& a, const PixelRect& b) {
    return std::tie(a.top, a.left, a.right, a.bottom) < std::tie(b.top, b.left, b.right, b.bottom);
  };
  std::vector<PixelRect> boxes;
  for (const Shown& shown : others_) {
    if (shown.hasLabel) boxes.push_back(LabelBox(*shown.label, shown.labelPlace));
  }
  std::ranges::sort(boxes, comesBefore);
  std::vector<PixelRect> changed;
  std::ranges::set_symmetric_difference(boxes, labelBoxes_, std::back_inserter(changed),
                                        comesBefore);
  labelBoxes_ = std::move(boxes);
  PixelRect all;
  for (const PixelRect& box : changed) all = UnionOf(all, box);
  return all;
}

void MapPicture::IncludeLabel(const Shown& shown) {
  const PixelRect box = look_.scale.Shown(shown.object->GetRect().Normalised());
  const PixelRect label = LabelBox(*shown.label, shown.labelPlace);
  reach_.left = std::max(reach_.left, box.left - label.left);
  reach_.up = std::max(reach_.up, box.top - label.top);
  reach_.right = std::max(reach_.right, label.right - box.left);
  reach_.down = std::max(reach_.down, label.bottom - box.top);
}

void MapPicture::ThinLabels(std::vector<Shown>& objects) {
  // Labels are small, so each lies in few cells.
  constexpr std::int64_t kCell = 32;
  std::unordered_map<std::int64_t, std::vector<PixelRect>> cells;
  const auto forCells = [&](const PixelRect& box, auto visit) {
    for (std::int64_t y = box.top / kCell; y <= box.bottom / kCell; ++y) {
      for (std::int64_t x = box.left / kCell; x <= box.right / kCell; ++x) {
        visit(cells[y << 32 ^ x]);
      }
    }
  };
  for (Shown& shown : objects) {
    const PixelRect box = LabelBox(*shown.label, shown.labelPlace);
    forCells(box, [&](const std::vector<PixelRect>& placed) {
      for (const PixelRect& other : placed) {
        if (box.left < other.right && other.left < box.right && box.top < other.bottom &&
            other.top < box.bottom) {
          shown.hasLabel = false;
        }
      }
    });
    if (!shown.hasLabel) continue;
    forCells(box, [&](std::vector<PixelRect>& placed) { placed.push_back(box); });
  }
}

PixelRect MapPicture::WithLabels(const PixelRect& area) {
  FollowList();
  const PixelRect shown = look_.scale.Shown(area);
  const PixelRect reached{shown.left - std::max(reach_.left, kHandleReach),
                          shown.top - std::max(reach_.up, kHandleReach),
                          shown.right + std::max(reach_.right, kHandleReach),
                          shown.bottom + std::max(reach_.down, kHandleReach)};
  return UnionOf(reached, std::exchange(stale_, {}));
}

void MapPicture::PaintShown(RowCanvas& canvas, const Shown& shown, std::int64_t y) const {
  if (!look_.IsShaded()) PaintLabelRow(canvas, *shown.label, shown.labelPlace, y);
  PaintShapeRow(canvas, *shown.object, y, look_);
}

const MapPicture::Layers& MapPicture::LayersAt(std::int64_t y) {
  Layers& row = rows_[static_cast<std::size_t>(y - view_.top)];
  if (row.made) return row;
  const Span columns{view_.left, view_.right};
  row = {true, RowCanvas(look_.IsShaded() ? columns : Span{}), RowCanvas(columns),
         RowCanvas(columns)};
  std::fill(onRow_.begin(), onRow_.end(), std::uint64_t{0});
  index_.ForEachAt(y, [this](std::uint32_t place) {
    onRow_[place / kWordBits] |= std::uint64_t{1} << place % kWordBits;
  });
  bool full = false;
  for (std::size_t word = 0; word < onRow_.size(); ++word) {
    for (std::uint64_t left = onRow_[word]; left != 0; left &= left - 1) {
      const std::size_t place = word * kWordBits + static_cast<std::size_t>(std::countr_zero(left));
      const Shown& shown = others_[place];
      if (look_.IsShaded() && shown.hasLabel) {
        PaintLabelRow(row.labels, *shown.label, shown.labelPlace, y);
      }
      RowCanvas& canvas = place < above_ ? row.above : row.below;
      if (full || !canvas.HasRoom({shown.box.left, shown.box.right})) continue;
      PaintShown(canvas, shown, y);
      full = canvas.IsFull();
      if (full && !look_.IsShaded()) return row;
    }
  }
  return row;
}

void MapPicture::PaintGrid(const PixelRect& area, std::int64_t y, std::span<Pixel> pixels) const {
  const PixelRect map = look_.scale.Shown(PixelRect{0, 0, list_.GetWidth(), list_.GetHeight()});
  const std::int64_t left = std::max(area.left, map.left);
  const std::int64_t right = std::min(area.right, map.right);
  if (y < map.top || y >= map.bottom || left >= right) return;
  const int times = look_.scale.Times();
  const bool whole = y % times == 0;
  const std::int64_t first = whole ? left : (left + times - 1) / times * times;
  for (std::int64_t x = first; x < right; x += whole ? 1 : times) {
    Pixel& pixel = pixels[static_cast<std::size_t>(x - area.left)];
    // Three quarters of what is there, and a quarter of black or, on what is dark, of white.
    const Pixel lighter = (pixel & 0x80) != 0 ? 0 : 0x3F3F3F;
    pixel = kBlackPixel | (((pixel & 0xFCFCFC) >> 2) * 3 + lighter);
  }
}

void MapPicture::Render(const PixelRect& area, const RubberBand& rubber, std::span<Pixel> pixels) {
  FollowList();
  const TDepthObj* selected = list_.Selected();
  const auto width = static_cast<std::size_t>(area.right - area.left);
  for (std::int64_t y = area.top; y < area.bottom; ++y) {
    RowCanvas canvas(Span{view_.left, view_.right});
    rubber.PaintRow(canvas, y, look_);
    const Layers& layers = LayersAt(y);
    if (!look_.IsShaded()) canvas.Paint(layers.above);
    if (selected != nullptr) PaintMarksRow(canvas, selected->GetRect(), y, look_);
    if (look_.IsShaded()) {
      if (selected != nullptr) {
        PaintLabelRow(canvas, labels_.Label(selected->GetLevel()),
                      LabelPlace(*selected, look_.scale), y);
      }
      canvas.Paint(layers.labels);
      canvas.Paint(layers.above);
    }
    if (selected != nullptr) PaintShown(canvas, Show(*selected), y);
    canvas.Paint(layers.below);
    const std::span row = pixels.first(width);
    canvas.Read(area.left, row);
    if (look_.HasGrid()) PaintGrid(area, y, row);
    pixels = pixels.subspan(width);
  }
}

}  // namespace plenovia
