#include "depthmap/map_gesture.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "depthmap/picking.h"
#include "depthmap/selection_edits.h"
#include "depthmap/snapped_way.h"

namespace plenovia {

namespace {

std::vector<const TDepthObj*> SelectionOf(const TDepthList& list) {
  return {list.Selection().begin(), list.Selection().end()};
}

bool IsGround(const TDepthList& list, const TDepthObj* object) {
  return object == nullptr || object == list.Background();
}

// Selects what lies in the frame from the press to the mouse, beside what was selected with Shift.
class FrameGesture : public MapGesture {
 public:
  FrameGesture(TDepthList& list, const GesturePress& press, std::vector<const TDepthObj*> before)
      : list_(list), press_(press), before_(std::move(before)) {}

  void MoveTo(const DepthPoint& at, const GestureKeys&) override {
    frame_ = {press_.at.x, press_.at.y, at.x, at.y};
    std::vector<const TDepthObj*> selected = ObjectsInside(list_, *frame_);
    if (press_.keys.shift) selected.insert(selected.begin(), before_.begin(), before_.end());
    if (selected != SelectionOf(list_)) list_.SelectAll(selected);
  }
  void Cancel() override { list_.SelectAll(before_); }
  std::optional<DepthRect> Frame() const override { return frame_; }

 private:
  TDepthList& list_;
  GesturePress press_;
  std::vector<const TDepthObj*> before_;
  std::optional<DepthRect> frame_;
};

// Moves what is selected.
class MoveGesture : public MapGesture {
 public:
  // `clicked` is selected alone when the mouse does not move.
  MoveGesture(TDepthList& list, const GesturePress& press, const TDepthObj* clicked)
      : list_(list), press_(press), clicked_(clicked), moved_(list) {
    list_.BeginEdit(EditKind::kMove);
  }
  ~MoveGesture() override { list_.EndEdit(); }

  void MoveTo(const DepthPoint& at, const GestureKeys& keys) override {
    hasMoved_ = true;
    const MapWay way{std::int64_t{at.x} - press_.at.x, std::int64_t{at.y} - press_.at.y};
    moved_.ShiftTo(keys.shift ? SnappedWay(way) : way);
  }
  void Finish() override {
    if (!hasMoved_ && list_.Selection().size() > 1) list_.Select(clicked_);
  }
  void Cancel() override { list_.TakeBackEdit(); }

 private:
  TDepthList& list_;
  GesturePress press_;
  const TDepthObj* clicked_;
  ShiftedSelection moved_;
  bool hasMoved_ = false;
};

void Toggle(TDepthList& list, const TDepthObj* object) {
  std::vector<const TDepthObj*> selected = SelectionOf(list);
  if (std::erase(selected, object) == 0) selected.push_back(object);
  std::erase(selected, list.Background());
  list.SelectAll(selected);
}

const TDepthObj* ObjectOf(const TDepthList& list, const GesturePress& press) {
  return press.keys.alt ? PickBelow(list, press.at, press.tolerance, list.Selected())
                        : PickObject(list, press.at, press.tolerance);
}

}  // namespace

std::unique_ptr<MapGesture> PressToSelect(TDepthList& list, const GesturePress& press) {
  const TDepthObj* object = ObjectOf(list, press);
  const bool ground = IsGround(list, object);
  std::vector<const TDepthObj*> before = SelectionOf(list);
  if (!press.keys.shift) {
    list.Select(object);
  } else if (!ground) {
    Toggle(list, object);
  }
  if (!ground) return nullptr;
  return std::make_unique<FrameGesture>(list, press, std::move(before));
}

std::unique_ptr<MapGesture> PressToMove(TDepthList& list, const GesturePress& press) {
  const TDepthObj* object = ObjectOf(list, press);
  const bool ground = IsGround(list, object);
  if (ground && (object == nullptr || !press.keys.control)) {
    std::vector<const TDepthObj*> before = SelectionOf(list);
    if (!press.keys.shift) list.Select(nullptr);
    return std::make_unique<FrameGesture>(list, press, std::move(before));
  }
  if (press.keys.shift) {
    Toggle(list, object);
    return nullptr;
  }
  if (!object->IsSelected()) list.Select(object);
  return std::make_unique<MoveGesture>(list, press, object);
}

}  // namespace plenovia
