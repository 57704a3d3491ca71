#include "depthmap/map_picture.h"

#include <algorithm>
#include <bit>
#include <limits>

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

}  // namespace

void MapPicture::SetSize(int width, int height) {
  if (width != width_) {
    rows_.clear();
    follows_ = false;
  }
  width_ = width;
  rows_.resize(static_cast<std::size_t>(height));
}

void MapPicture::KeepRows(int first, int end) {
  for (int y = keptFirst_; y < std::min<int>(keptEnd_, static_cast<int>(rows_.size())); ++y) {
    if (y < first || y >= end) rows_[static_cast<std::size_t>(y)] = {};
  }
  keptFirst_ = first;
  keptEnd_ = end;
}

void MapPicture::FollowList() {
  if (follows_ && edition_ == list_.Edition()) return;
  follows_ = true;
  edition_ = list_.Edition();
  others_.clear();
  above_ = 0;
  std::vector<IntervalTree::Interval> rows;
  for (const TDepthObj* object = list_.Head(); object != nullptr;
       object = TDepthList::Below(*object)) {
    const LevelLabel& label = labels_.Label(object->GetLevel());
    IncludeLabel(*object, label);
    if (object == list_.Selected()) {
      above_ = others_.size();
      continue;
    }
    const PixelRect box = DrawnBox(*object, label);
    if (box.right <= 0 || box.left >= width_) continue;
    rows.push_back(RowsOf(box, others_.size()));
    others_.push_back({object, &label, box});
  }
  index_ = IntervalTree(rows);
  onRow_.resize(others_.size() / kWordBits + 1);
  for (Layers& row : rows_) row.made = false;
}

void MapPicture::IncludeLabel(const TDepthObj& object, const LevelLabel& label) {
  const PixelRect box = object.GetRect().Normalised();
  const PixelPoint place = LabelPlace(object);
  reach_.left = std::max(reach_.left, box.left - (place.x + label.left));
  reach_.up = std::max(reach_.up, box.top - (place.y + label.top));
  reach_.right = std::max(reach_.right, place.x + label.right - box.left);
  reach_.down = std::max(reach_.down, place.y + label.Bottom() - box.top);
}

PixelRect MapPicture::WithLabels(const PixelRect& area) {
  FollowList();
  return {area.left - reach_.left, area.top - reach_.up, area.right + reach_.right,
          area.bottom + reach_.down};
}

void MapPicture::PaintRow(RowCanvas& canvas, const Shown& shown, std::int64_t y) {
  PaintLabelRow(canvas, *shown.label, LabelPlace(*shown.object), y);
  PaintShapeRow(canvas, *shown.object, y);
}

const MapPicture::Layers& MapPicture::LayersAt(int y) {
  Layers& row = rows_[static_cast<std::size_t>(y)];
  if (row.made) return row;
  row = {true, RowCanvas(width_), RowCanvas(width_)};
  std::fill(onRow_.begin(), onRow_.end(), std::uint64_t{0});
  index_.ForEachAt(y, [this](std::uint32_t place) {
    onRow_[place / kWordBits] |= std::uint64_t{1} << place % kWordBits;
  });
  for (std::size_t word = 0; word < onRow_.size(); ++word) {
    for (std::uint64_t left = onRow_[word]; left != 0; left &= left - 1) {
      const std::size_t place = word * kWordBits + static_cast<std::size_t>(std::countr_zero(left));
      const Shown& shown = others_[place];
      RowCanvas& canvas = place < above_ ? row.above : row.below;
      if (!canvas.HasRoom({shown.box.left, shown.box.right})) continue;
      PaintRow(canvas, shown, y);
      if (canvas.IsFull()) return row;
    }
  }
  return row;
}

void MapPicture::Render(const PixelRect& area, const RubberBand& rubber,
                        std::span<std::uint32_t> pixels) {
  FollowList();
  const TDepthObj* selected = list_.Selected();
  const auto width = static_cast<std::size_t>(area.right - area.left);
  for (std::int64_t y = area.top; y < area.bottom; ++y) {
    RowCanvas canvas(width_);
    rubber.PaintRow(canvas, y);
    const Layers& layers = LayersAt(static_cast<int>(y));
    canvas.Paint(layers.above);
    if (selected != nullptr) {
      PaintMarksRow(canvas, selected->GetRect(), y);
      PaintRow(canvas, {selected, &labels_.Label(selected->GetLevel()), {}}, y);
    }
    canvas.Paint(layers.below);
    canvas.Read(static_cast<int>(area.left), pixels.first(width));
    pixels = pixels.subspan(width);
  }
}

}  // namespace plenovia
