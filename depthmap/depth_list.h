// The depth objects of one map in stacking order, and the operations of the editor on them.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <vector>

#include "depthmap/depth_obj.h"
#include "depthmap/map_history.h"
#include "platform/level_grid.h"

namespace plenovia {

class LevelRows;

// Owns its objects. The first is the topmost one; the last is the background box, which stays last
// and cannot be deleted. A map made with a side below 1 has no objects until one is added.
//
// Objects are handed out const: what changes them goes through the list, so that it always knows
// what it samples, and can undo it. An object that an operation names is ignored when it is not in
// the list.
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
  const TDepthObj* Background() const { return background_; }
  static const TDepthObj* Below(const TDepthObj& object);
  static const TDepthObj* Above(const TDepthObj& object);
  std::int64_t CountObjects() const;

  // The topmost object at the point, or null.
  const TDepthObj* ObjectAt(std::int32_t x, std::int32_t y) const;

  // The selected objects in the order of their selection, and the last of them or null.
  std::span<TDepthObj* const> Selection() const { return selection_; }
  const TDepthObj* Selected() const { return selection_.empty() ? nullptr : selection_.back(); }
  // The same, topmost first.
  std::vector<TDepthObj*> SelectionFromTop() const;
  // Whether the object is in this list.
  bool Holds(const TDepthObj& object) const { return object.home_ == rows_.get(); }

  std::int32_t CurrentLevel() const { return currentLevel_; }
  void SetCurrentLevel(std::int32_t level) { currentLevel_ = level; }
  // Whether the map is as it was when it was marked saved, also after undo.
  bool IsSaved() const { return saved_ == contents_; }
  void MarkSaved() { saved_ = contents_; }
  // It is like none that was saved.
  void MarkUnsaved() { saved_ = 0; }
  // Names what the map holds: of one list, equal numbers name equal maps. Never 0.
  std::uint64_t Contents() const { return contents_; }

  // From here on changes can be undone.
  void KeepHistory(std::size_t memory = MapHistory::kMemory);
  // All changes between the two are one step, which counts as changed only where something is
  // different at the end. MapEdit does both. A change outside is a step by itself. One that
  // goes on with the step before joins it, unless the map was saved between them.
  void BeginEdit(EditKind kind);
  void EndEdit(bool joins = false);
  // Takes back what has been done since BeginEdit().
  void TakeBackEdit();
  // Select the objects concerned. Nothing happens while an edit is open.
  void Undo();
  void Redo();
  std::optional<EditKind> UndoKind() const;
  std::optional<EditKind> RedoKind() const;

  // Puts an object on top, or above another one of the list.
  void AddObject(std::unique_ptr<TDepthObj> object);
  void InsertAbove(const TDepthObj* below, std::unique_ptr<TDepthObj> object);
  // Neither is possible for the background box.
  void Remove(const TDepthObj* object);
  void PutAbove(const TDepthObj* object, const TDepthObj* below);
  void SetObjectLevel(const TDepthObj* object, std::int32_t level);
  // The corners of a polygon follow from its vertices.
  void SetGeometry(const TDepthObj* object, DepthGeometry geometry);
  // The map's size; the background box keeps its own.
  void SetSize(std::int64_t width, std::int64_t height);

  // Selects an object, or none with null; or these objects, without those that are not in the list.
  // Both the old and the new selection are repainted.
  void Select(const TDepthObj* object);
  void SelectAll(std::span<const TDepthObj* const> objects);
  // Makes the object's level the current level, or the other way round, and selects the object.
  void GetObjectLevel(const TDepthObj* object);
  void ApplyObjectLevel(const TDepthObj* object);

  // Delete the selected objects, or exchange each with the one above or below it. Nothing happens
  // to the background box, and none passes it, an end of the list or another selected one.
  void CmDelete();
  void CmMoveUp();
  void CmMoveDown();

  // The object selected last as TDepthObj::MoveTo would have it, the background box too.
  void MoveSelectedTo(const DepthRect& rect);
  // Has the object's area repainted.
  void Invalidate(const TDepthObj* object);

  // A number that another one replaces with every change of this list, other than those of
  // selected objects' places on the map.
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
  friend class MapHistory;

  TDepthObj* Own(const TDepthObj* object) const;
  // Makes a change, which becomes its inverse.
  void Exchange(ListChange& change);
  void Exchanged(PresenceChange& change);
  void Exchanged(OrderChange& change);
  void Exchanged(LevelChange& change);
  void Exchanged(GeometryChange& change);
  void Exchanged(SizeChange& change);
  // MapHistory::Undo or Redo, with the selection that follows.
  using HistoryStep = std::optional<std::uint64_t> (MapHistory::*)(TDepthList&,
                                                                   std::vector<TDepthObj*>&);
  void Step(HistoryStep step);
  // A change that can be undone.
  void Make(EditKind kind, ListChange change);
  void Link(TDepthObj* object, TDepthObj* below);
  TDepthObj* Unlink(TDepthObj* object);
  void Changed();
  void Deselect(TDepthObj* object);

  TDepthObj* head_ = nullptr;  // owned, with all that follows it
  TDepthObj* background_ = nullptr;
  std::vector<TDepthObj*> selection_;
  DepthObjOwner* owner_ = nullptr;
  std::int32_t currentLevel_ = 0;
  std::uint64_t edition_ = 0;
  std::uint64_t newest_ = 1;  // the contents named last; 0 is never there
  std::uint64_t contents_ = 1;
  std::uint64_t saved_ = 0;
  std::int64_t width_ = 0;
  std::int64_t height_ = 0;
  std::unique_ptr<LevelRows> rows_;  // its address tells this list from others
  std::unique_ptr<MapHistory> history_;
};

// One step of a list's history, as long as it lives.
class MapEdit {
 public:
  MapEdit(TDepthList& list, EditKind kind) : list_(list) { list_.BeginEdit(kind); }
  ~MapEdit() { list_.EndEdit(); }
  MapEdit(const MapEdit&) = delete;
  MapEdit& operator=(const MapEdit&) = delete;

 private:
  TDepthList& list_;
};

}  // namespace plenovia
