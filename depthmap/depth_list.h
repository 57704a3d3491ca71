// The depth objects of one map in stacking order, and the operations of the editor on them.
#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <vector>

#include "depthmap/depth_obj.h"
#include "platform/level_grid.h"

namespace plenovia {

class LevelRows;

// Owns its objects. The first is the topmost one; the last is the background box, which stays last
// and cannot be deleted. A map made with a side below 1 has no objects until one is added.
//
// Objects are handed out const: what changes them goes through the list, so that it always knows
// what it samples. An object that an operation names is ignored when it is not one of the list's.
// One thread changes the list; LevelRow() may be called on several threads between changes.
class TDepthList final : public LevelGrid {
 public:
  // A new map: a square box of level 0 from (0, 0) to (width, height). Not saved.
  TDepthList(std::int32_t width, std::int32_t height, DepthObjOwner* owner = nullptr);
  // A map of these objects, at least one, topmost first; the last one gives it its size.
  explicit TDepthList(std::vector<std::unique_ptr<TDepthObj>> objects);
  // What was moved from can only be destroyed or assigned to.
  TDepthList(TDepthList&& other) noexcept;
  TDepthList& operator=(TDepthList&& other) noexcept;
  ~TDepthList() override;

  // Who repaints, for all objects and those added later. Borrowed; may be absent.
  void SetOwner(DepthObjOwner* owner);

  // Walking: from Head() with Below(), or from Background() with Above(); null at the end.
  const TDepthObj* Head() const { return head_; }
  const TDepthObj* Background() const;
  static const TDepthObj* Below(const TDepthObj& object);
  static const TDepthObj* Above(const TDepthObj& object);
  std::int64_t CountObjects() const;

  // The topmost object at the point, or null.
  const TDepthObj* ObjectAt(std::int32_t x, std::int32_t y) const;

  const TDepthObj* Selected() const { return selected_; }
  std::int32_t CurrentLevel() const { return currentLevel_; }
  void SetCurrentLevel(std::int32_t level) { currentLevel_ = level; }
  bool IsSaved() const { return saved_; }
  void MarkSaved() { saved_ = true; }

  // Puts an object on top. Not saved any more.
  void AddObject(std::unique_ptr<TDepthObj> object);
  // Selects an object, or none with null. Both the old and the new selection are
  // repainted.
  void Select(const TDepthObj* object);
  // Makes the object's level the current level, or the other way round, and selects the object.
  void GetObjectLevel(const TDepthObj* object);
  // Not saved any more when the object had another level.
  void ApplyObjectLevel(const TDepthObj* object);

  // Delete the selected object, or exchange it with the one above or below it. Nothing happens when
  // none or the background box is selected, or when it would pass an end of the list.
  void CmDelete();
  void CmMoveUp();
  void CmMoveDown();

  // TDepthObj::MoveTo for the selected object, the background box too. Neither repaints nor counts
  // as a change that has to be saved.
  void MoveSelectedTo(const DepthRect& rect);
  // Has the object's area repainted.
  void Invalidate(const TDepthObj* object);

  // A number that another one replaces with every change of this list, other than those of the
  // selected object's place on the map.
  std::uint64_t Edition() const { return edition_; }

  // The map's size in pixels: as made, or that of the last object when it was read from a file.
  std::int64_t GetWidth() const { return width_; }
  std::int64_t GetHeight() const { return height_; }
  // Bytes of an 8-bit picture of the map with rows padded to 4 bytes.
  std::uint64_t GetImageSize() const;

  // The level of the topmost object at the point, 0 where there is none.
  std::int32_t GetLevelAt(std::int32_t x, std::int32_t y) const;

  // The size, at most the greatest int. LevelRow() gives what GetLevelAt() gives.
  int GridWidth() const override;
  int GridHeight() const override;
  void LevelRow(int y, std::span<std::int32_t> levels) const override;

 private:
  TDepthObj* Own(const TDepthObj* object);
  void ExchangeWithBelow(TDepthObj* upper);
  void Changed();

  TDepthObj* head_ = nullptr;  // owned, with all that follows it
  TDepthObj* selected_ = nullptr;
  DepthObjOwner* owner_ = nullptr;
  std::int32_t currentLevel_ = 0;
  std::uint64_t edition_ = 0;
  bool saved_ = false;
  std::int64_t width_ = 0;
  std::int64_t height_ = 0;
  std::unique_ptr<LevelRows> rows_;
};

}  // namespace plenovia
