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
  std::swap(selected_, other.selected_);
  std::swap(owner_, other.owner_);
  std::swap(currentLevel_, other.currentLevel_);
  std::swap(edition_, other.edition_);
  std::swap(saved_, other.saved_);
  std::swap(width_, other.width_);
  std::swap(height_, other.height_);
  std::swap(rows_, other.rows_);
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

const TDepthObj* TDepthList::Background() const {
  const TLinkObj* head = head_;
  return head == nullptr ? nullptr : static_cast<const TDepthObj*>(head->GetLast());
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

// The same object, to be changed; null when it is not one of the list's.
TDepthObj* TDepthList::Own(const TDepthObj* object) {
  if (object == selected_) return selected_;
  TDepthObj* own = head_;
  while (own != nullptr && own != object) own = NextOf(own);
  return own;
}

void TDepthList::Changed() {
  rows_->Forget();
  ++edition_;
  saved_ = false;
}

void TDepthList::AddObject(std::unique_ptr<TDepthObj> object) {
  TDepthObj* added = object.release();
  added->SetOwner(owner_);
  added->SetNext(head_);
  added->SetPrev(nullptr);
  if (head_ != nullptr) head_->SetPrev(added);
  head_ = added;
  Changed();
}

void TDepthList::Select(const TDepthObj* object) {
  TDepthObj* own = Own(object);
  if (own == nullptr && object != nullptr) return;
  TDepthObj* before = std::exchange(selected_, own);
  ++edition_;
  if (before != nullptr) before->Invalidate();
  if (selected_ != nullptr) selected_->Invalidate();
}

void TDepthList::GetObjectLevel(const TDepthObj* object) {
  TDepthObj* own = Own(object);
  if (own == nullptr) return;
  currentLevel_ = own->GetLevel();
  Select(own);
}

void TDepthList::ApplyObjectLevel(const TDepthObj* object) {
  TDepthObj* own = Own(object);
  if (own == nullptr) return;
  if (own->GetLevel() != currentLevel_) saved_ = false;
  own->SetLevel(currentLevel_);
  Select(own);
}

void TDepthList::CmDelete() {
  if (selected_ == nullptr || selected_->GetNext() == nullptr) return;
  const std::unique_ptr<TDepthObj> deleted(std::exchange(selected_, nullptr));
  if (deleted.get() == head_) head_ = NextOf(head_);
  deleted->Unlink();
  Changed();
  deleted->Invalidate();
}

void TDepthList::CmMoveUp() {
  if (selected_ == nullptr || selected_->GetNext() == nullptr || selected_ == head_) return;
  TDepthObj* passed = PrevOf(selected_);
  ExchangeWithBelow(passed);
  passed->Invalidate();
  selected_->Invalidate();
}

void TDepthList::CmMoveDown() {
  if (selected_ == nullptr || selected_->GetNext() == nullptr) return;
  TDepthObj* passed = NextOf(selected_);
  if (passed->GetNext() == nullptr) return;
  ExchangeWithBelow(selected_);
  passed->Invalidate();
  selected_->Invalidate();
}

void TDepthList::ExchangeWithBelow(TDepthObj* upper) {
  TDepthObj* lower = NextOf(upper);
  upper->Unlink();
  // `lower` now has the neighbour above; `upper` goes in behind it.
  upper->SetPrev(lower);
  upper->SetNext(lower->GetNext());
  if (lower->GetNext() != nullptr) lower->GetNext()->SetPrev(upper);
  lower->SetNext(upper);
  if (upper == head_) head_ = lower;
  Changed();
}

void TDepthList::MoveSelectedTo(const DepthRect& rect) {
  if (selected_ == nullptr) return;
  rows_->Forget();
  if (!(selected_->GetRect() == rect)) saved_ = false;
  selected_->MoveTo(rect);
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
