// Undo and redo of everything that changes a depth map.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <memory>
#include <optional>
#include <set>
#include <utility>
#include <variant>
#include <vector>

#include "depthmap/depth_obj.h"

namespace plenovia {

class TDepthList;

// What the user did, for the name of a step.
enum class EditKind {
  kDraw,
  kMove,
  kSetLevel,
  kRestack,
  kDelete,
  kCut,
  kPaste,
  kDuplicate,
  kResize,
  kMovePoint,
  kAddPoint,
  kDeletePoint,
  kRotate,
  kMirror,
  kAlign,
  kDistribute,
  kText,
  kRamp,
  kMapSize,
};

// The changes that steps are made of. Each is its own inverse: when it is made, it takes the value
// that was there before. Objects are those of the list, or kept in one of the steps.
struct PresenceChange {
  TDepthObj* object;
  TDepthObj* below;                    // what it lies on in the list; null under the last one
  std::unique_ptr<TDepthObj> outside;  // the object itself while it is not in the list
};
struct OrderChange {
  TDepthObj* object;
  TDepthObj* below;
};
struct LevelChange {
  TDepthObj* object;
  std::int32_t level;
};
struct GeometryChange {
  TDepthObj* object;
  DepthGeometry geometry;
};
struct SizeChange {
  std::int64_t width;
  std::int64_t height;
};
using ListChange =
    std::variant<PresenceChange, OrderChange, LevelChange, GeometryChange, SizeChange>;

// The object that a change is about, or null.
TDepthObj* ObjectOf(const ListChange& change);

// The steps that were done and those that were undone. The oldest ones are forgotten when all
// need more than the memory allowed; the newest one is always kept. Only its list works with it.
class MapHistory {
 public:
  static constexpr std::size_t kMemory = std::size_t{64} << 20;

  explicit MapHistory(std::size_t memory = kMemory) : memory_(memory) {}

  // All changes up to the End() that belongs to this Begin() become one step; none when all is as
  // it was. Of steps inside each other the outermost counts. `contents` names what the map holds at
  // that moment; End() gives it, or that of the beginning when all is as it was. One that `joins`
  // becomes part of the step before, when both are of a kind and about the places of the same
  // objects.
  void Begin(EditKind kind, std::uint64_t contents);
  std::uint64_t End(std::uint64_t contents, bool joins = false);
  bool IsOpen() const { return depth_ > 0; }
  // Whether the open step began with these contents.
  bool IsOpenSince(std::uint64_t contents) const { return open_.before == contents; }

  // Takes a change that has been made. What an open step knows already of an object's place or
  // level is not kept twice.
  void Record(ListChange change);

  // What the next Undo() and Redo() are about.
  std::optional<EditKind> UndoKind() const;
  std::optional<EditKind> RedoKind() const;

  // Take back what is done in the open step, which then has no changes; the last step done; or do
  // the step undone last again. Give the contents that the map has then, nothing when there is no
  // such step. `touched` gets the objects concerned that are in the list, each once.
  std::optional<std::uint64_t> TakeBack(TDepthList& list, std::vector<TDepthObj*>& touched);
  std::optional<std::uint64_t> Undo(TDepthList& list, std::vector<TDepthObj*>& touched);
  std::optional<std::uint64_t> Redo(TDepthList& list, std::vector<TDepthObj*>& touched);

  // About what the steps take of the memory.
  std::size_t Bytes() const { return bytes_; }

 private:
  struct Step {
    EditKind kind = EditKind::kDraw;
    std::vector<ListChange> changes;
    std::uint64_t before = 0;
    std::uint64_t after = 0;
    std::size_t bytes = 0;
  };

  void Forget(std::deque<Step>& steps);
  static bool CanJoin(const Step& step, const Step& before);

  std::size_t memory_;
  std::size_t bytes_ = 0;
  std::deque<Step> done_;    // the newest last
  std::deque<Step> undone_;  // the next to redo last
  Step open_;
  int depth_ = 0;
  std::set<std::pair<const TDepthObj*, std::size_t>> known_;  // object and alternative of open_
};

}  // namespace plenovia
