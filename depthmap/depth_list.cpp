#include "depthmap/depth_list.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "depthmap/level_rows.h"

namespace plenovia {

namespace {

TDepthObj* NextOf(TDepthObj* object) {
  return static_cast<TDepthObj*>(object->GetNext());
}
TDepthObj* PrevOf(TDepthObj* object) {
  return static_cast<TDepthObj*>(object->GetPrev());
}

}  // namespace

TDepthList::TDepthList(std::int32_t width, std::int32_t height, DepthObjOwner* owner)
    : owner_(owner), width_(width), height_(height), rows_(std::make_unique<LevelRows>()) {
  if (width < 1 || height < 1) return;
  AddObject(std::make_unique<TDepthObj>(owner, DepthRect{0, 0, width, height}, SquareBoxObj, 0));
}

TDepthList::TDepthList(std::vector<std::unique_ptr<TDepthObj>> objects)
    : rows_(std::make_unique<LevelRows>()) {
  const DepthSize size = objects.back()->GetSize();
  width_ = size.width;
  height_ = size.height;
  for (auto object = objects.rbegin(); object != objects.rend(); ++object) {
    AddObject(std::move(*object));
  }
}

TDepthList::TDepthList(TDepthList&& other) noexcept {
  *this = std::move(other);
}

TDepthList& TDepthList::operator=(TDepthList&& other) noexcept {
  std::swap(head_, other.head_);
  std::swap(background_, other.background_);
  std::swap(selection_, other.selection_);
  std::swap(owner_, other.owner_);
  std::swap(currentLevel_, other.currentLevel_);
  std::swap(edition_, other.edition_);
  std::swap(newest_, other.newest_);
  std::swap(contents_, other.contents_);
  std::swap(saved_, other.saved_);
  std::swap(width_, other.width_);
  std::swap(height_, other.height_);
  std::swap(rows_, other.rows_);
  std::swap(history_, other.history_);
  return *this;
}

TDepthList::~TDepthList() {
  if (head_ != nullptr) head_->DeleteRest();
  delete head_;
}

void TDepthList::SetOwner(DepthObjOwner* owner) {
  owner_ = owner;
  for (TDepthObj* object = head_; object != nullptr; object = NextOf(object)) {
    object->SetOwner(owner);
  }
}

const TDepthObj* TDepthList::Below(const TDepthObj& object) {
  return static_cast<const TDepthObj*>(object.GetNext());
}

const TDepthObj* TDepthList::Above(const TDepthObj& object) {
  return static_cast<const TDepthObj*>(object.GetPrev());
}

std::int64_t TDepthList::CountObjects() const {
  std::int64_t count = 0;
  for (const TDepthObj* object = head_; object != nullptr; object = Below(*object)) ++count;
  return count;
}

const TDepthObj* TDepthList::ObjectAt(std::int32_t x, std::int32_t y) const {
  const TDepthObj* object = head_;
  while (object != nullptr && !object->ContainsPoint(x, y)) object = Below(*object);
  return object;
}

// The same object, to be changed; null when it is not in the list.
TDepthObj* TDepthList::Own(const TDepthObj* object) const {
  return object != nullptr && Holds(*object) ? const_cast<TDepthObj*>(object) : nullptr;
}

void TDepthList::Changed() {
  rows_->Forget();
  ++edition_;
}

void TDepthList::Link(TDepthObj* object, TDepthObj* below) {
  TDepthObj* above = below != nullptr ? PrevOf(below) : background_;
  object->SetNext(below);
  object->SetPrev(above);
  if (below != nullptr) {
    below->SetPrev(object);
  } else {
    background_ = object;
  }
  if (above != nullptr) {
    above->SetNext(object);
  } else {
    head_ = object;
  }
}

// Gives what the object lay on.
TDepthObj* TDepthList::Unlink(TDepthObj* object) {
  TDepthObj* below = NextOf(object);
  if (head_ == object) head_ = below;
  if (background_ == object) background_ = PrevOf(object);
  object->Unlink();
  return below;
}

void TDepthList::Exchange(ListChange& change) {
  std::visit([this](auto& each) { Exchanged(each); }, change);
}

void TDepthList::Exchanged(PresenceChange& change) {
  if (change.outside == nullptr) {
    Deselect(change.object);
    change.below = Unlink(change.object);
    change.object->home_ = nullptr;
    change.outside.reset(change.object);
    Changed();
    change.object->Invalidate();
    change.object->DropRegion();
  } else {
    TDepthObj* object = change.outside.release();
    object->home_ = rows_.get();
    object->SetOwner(owner_);
    Link(object, change.below);
    Changed();
    object->Invalidate();
  }
}

void TDepthList::Exchanged(OrderChange& change) {
  TDepthObj* below = Unlink(change.object);
  Link(change.object, std::exchange(change.below, below));
  Changed();
  change.object->Invalidate();
}

void TDepthList::Exchanged(LevelChange& change) {
  const std::int32_t before = change.object->GetLevel();
  change.object->SetLevel(std::exchange(change.level, before));
  ++edition_;
  change.object->Invalidate();
}

void TDepthList::Exchanged(GeometryChange& change) {
  change.object->Invalidate();
  change.object->ExchangeGeometry(change.geometry);
  rows_->Forget();
  if (change.object != Selected()) ++edition_;
  change.object->Invalidate();
}

void TDepthList::Exchanged(SizeChange& change) {
  std::swap(width_, change.width);
  std::swap(height_, change.height);
  ++edition_;
}

void TDepthList::Make(EditKind kind, ListChange change) {
  if (history_) history_->Begin(kind, contents_);
  Exchange(change);
  contents_ = ++newest_;
  if (!history_) return;
  history_->Record(std::move(change));
  contents_ = history_->End(contents_);
}

void TDepthList::KeepHistory(std::size_t memory) {
  history_ = std::make_unique<MapHistory>(memory);
}

void TDepthList::BeginEdit(EditKind kind) {
  if (history_) history_->Begin(kind, contents_);
}

void TDepthList::EndEdit(bool joins) {
  if (history_) contents_ = history_->End(contents_, joins && !history_->IsOpenSince(saved_));
}

void TDepthList::TakeBackEdit() {
  std::vector<TDepthObj*> touched;
  if (history_) contents_ = history_->TakeBack(*this, touched).value_or(contents_);
}

void TDepthList::Undo() {
  if (history_) Step(&MapHistory::Undo);
}

void TDepthList::Redo() {
  if (history_) Step(&MapHistory::Redo);
}

void TDepthList::Step(HistoryStep step) {
  if (history_->IsOpen()) return;
  const std::vector<TDepthObj*> before = selection_;
  std::vector<TDepthObj*> touched;
  SelectAll({});
  const auto contents = (history_.get()->*step)(*this, touched);
  contents_ = contents.value_or(contents_);
  const std::vector<TDepthObj*>& selected = contents ? touched : before;
  SelectAll(std::vector<const TDepthObj*>(selected.begin(), selected.end()));
}

std::optional<EditKind> TDepthList::UndoKind() const {
  return history_ ? history_->UndoKind() : std::nullopt;
}

std::optional<EditKind> TDepthList::RedoKind() const {
  return history_ ? history_->RedoKind() : std::nullopt;
}

void TDepthList::AddObject(std::unique_ptr<TDepthObj> object) {
  TDepthObj* added = object.get();
  Make(EditKind::kDraw, PresenceChange{added, head_, std::move(object)});
}

void TDepthList::InsertAbove(const TDepthObj* below, std::unique_ptr<TDepthObj> object) {
  TDepthObj* added = object.get();
  if (TDepthObj* own = Own(below)) {
    Make(EditKind::kDraw, PresenceChange{added, own, std::move(object)});
  }
}

void TDepthList::Remove(const TDepthObj* object) {
  TDepthObj* own = Own(object);
  if (own == nullptr || own == background_) return;
  Make(EditKind::kDelete, PresenceChange{own, nullptr, nullptr});
}

void TDepthList::PutAbove(const TDepthObj* object, const TDepthObj* below) {
  TDepthObj* own = Own(object);
  TDepthObj* base = Own(below);
  if (own == nullptr || base == nullptr || own == background_ || own == base) return;
  if (NextOf(own) != base) Make(EditKind::kRestack, OrderChange{own, base});
}

void TDepthList::SetObjectLevel(const TDepthObj* object, std::int32_t level) {
  TDepthObj* own = Own(object);
  if (own == nullptr || own->GetLevel() == level) return;
  Make(EditKind::kSetLevel, LevelChange{own, level});
}

void TDepthList::SetGeometry(const TDepthObj* object, DepthGeometry geometry) {
  TDepthObj* own = Own(object);
  if (own == nullptr) return;
  if (own->GetKind() == PolygonObj) geometry.rect = own->GetRect();
  if (geometry == own->GetGeometry()) return;
  Make(EditKind::kMove, GeometryChange{own, std::move(geometry)});
}

void TDepthList::SetSize(std::int64_t width, std::int64_t height) {
  if (width == width_ && height == height_) return;
  Make(EditKind::kMapSize, SizeChange{width, height});
}

void TDepthList::Deselect(TDepthObj* object) {
  if (!std::exchange(object->selected_, false)) return;
  std::erase(selection_, object);
  ++edition_;
}

void TDepthList::Select(const TDepthObj* object) {
  if (object == nullptr) {
    SelectAll({});
  } else if (Holds(*object)) {
    SelectAll({&object, 1});
  }
}

void TDepthList::SelectAll(std::span<const TDepthObj* const> objects) {
  const std::vector<TDepthObj*> before = std::exchange(selection_, {});
  for (TDepthObj* object : before) object->selected_ = false;
  for (const TDepthObj* object : objects) {
    TDepthObj* own = Own(object);
    if (own == nullptr || std::exchange(own->selected_, true)) continue;
    selection_.push_back(own);
  }
  ++edition_;
  for (TDepthObj* object : before) object->Invalidate();
  for (TDepthObj* object : selection_) object->Invalidate();
}

std::vector<TDepthObj*> TDepthList::SelectionFromTop() const {
  if (selection_.size() < 2) return selection_;
  std::vector<TDepthObj*> all;
  for (TDepthObj* object = head_; object != nullptr; object = NextOf(object)) {
    if (object->IsSelected()) all.push_back(object);
  }
  return all;
}

void TDepthList::GetObjectLevel(const TDepthObj* object) {
  const TDepthObj* own = Own(object);
  if (own == nullptr) return;
  currentLevel_ = own->GetLevel();
  Select(own);
}

void TDepthList::ApplyObjectLevel(const TDepthObj* object) {
  if (Own(object) == nullptr) return;
  SetObjectLevel(object, currentLevel_);
  Select(object);
}

void TDepthList::CmDelete() {
  const MapEdit edit(*this, EditKind::kDelete);
  const std::vector<TDepthObj*> selected = std::exchange(selection_, {});
  for (TDepthObj* object : selected) {
    if (object == background_) {
      selection_ = {background_};
      continue;
    }
    object->selected_ = false;
    Remove(object);
  }
}

void TDepthList::CmMoveUp() {
  const MapEdit edit(*this, EditKind::kRestack);
  for (TDepthObj* object : SelectionFromTop()) {
    TDepthObj* passed = PrevOf(object);
    if (passed == nullptr || passed->IsSelected() || object == background_) continue;
    passed->Invalidate();
    PutAbove(object, passed);
  }
}

void TDepthList::CmMoveDown() {
  const MapEdit edit(*this, EditKind::kRestack);
  std::vector<TDepthObj*> fromTop = SelectionFromTop();
  for (auto object = fromTop.rbegin(); object != fromTop.rend(); ++object) {
    TDepthObj* passed = NextOf(*object);
    if (passed == nullptr || passed == background_ || passed->IsSelected()) continue;
    passed->Invalidate();
    PutAbove(*object, NextOf(passed));
  }
}

void TDepthList::MoveSelectedTo(const DepthRect& rect) {
  if (selection_.empty()) return;
  TDepthObj* own = selection_.back();
  TDepthObj moved(nullptr, own->GetRect(), own->GetKind(), 0);
  DepthGeometry geometry = own->GetGeometry();
  moved.ExchangeGeometry(geometry);
  moved.MoveTo(rect);
  SetGeometry(own, moved.GetGeometry());
}

void TDepthList::Invalidate(const TDepthObj* object) {
  if (TDepthObj* own = Own(object)) own->Invalidate();
}

std::uint64_t TDepthList::GetImageSize() const {
  if (width_ < 1 || height_ < 1) return 0;
  const std::uint64_t paddedWidth = (static_cast<std::uint64_t>(width_) * 8 + 31) / 32 * 4;
  return paddedWidth * static_cast<std::uint64_t>(height_);
}

std::int32_t TDepthList::GetLevelAt(std::int32_t x, std::int32_t y) const {
  const TDepthObj* object = ObjectAt(x, y);
  return object == nullptr ? 0 : object->GetLevel();
}

int TDepthList::GridWidth() const {
  return static_cast<int>(std::min<std::int64_t>(width_, std::numeric_limits<int>::max()));
}

int TDepthList::GridHeight() const {
  return static_cast<int>(std::min<std::int64_t>(height_, std::numeric_limits<int>::max()));
}

void TDepthList::LevelRow(int y, std::span<std::int32_t> levels) const {
  rows_->Sample(head_, y, levels);
}

}  // namespace plenovia
