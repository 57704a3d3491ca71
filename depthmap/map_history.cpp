#include "depthmap/map_history.h"

#include <algorithm>

#include "depthmap/depth_list.h"

namespace plenovia {

namespace {

std::size_t BytesOf(const DepthGeometry& geometry) {
  return geometry.points.capacity() * sizeof(DepthPoint);
}

std::size_t BytesOf(const ListChange& change) {
  std::size_t bytes = sizeof(ListChange);
  if (const auto* geometry = std::get_if<GeometryChange>(&change)) {
    bytes += BytesOf(geometry->geometry);
  }
  // An object of this step is kept by it while it is not in the list, now or after an undo.
  if (const auto* presence = std::get_if<PresenceChange>(&change)) {
    bytes += sizeof(TDepthObj) + presence->object->GetPoints().size_bytes();
  }
  return bytes;
}

// Whether nothing is different after the change.
bool IsIdle(const ListChange& change) {
  if (const auto* level = std::get_if<LevelChange>(&change)) {
    return level->level == level->object->GetLevel();
  }
  if (const auto* place = std::get_if<GeometryChange>(&change)) {
    return place->geometry == place->object->GetGeometry();
  }
  return false;
}

void Touch(const TDepthList& list, std::vector<TDepthObj*>& touched,
           const std::vector<ListChange>& changes) {
  for (const ListChange& change : changes) {
    TDepthObj* object = ObjectOf(change);
    if (object != nullptr && list.Holds(*object)) touched.push_back(object);
  }
  std::sort(touched.begin(), touched.end());
  touched.erase(std::unique(touched.begin(), touched.end()), touched.end());
}

}  // namespace

TDepthObj* ObjectOf(const ListChange& change) {
  return std::visit(
      [](const auto& each) -> TDepthObj* {
        if constexpr (requires { each.object; }) {
          return each.object;
        } else {
          return nullptr;
        }
      },
      change);
}

void MapHistory::Begin(EditKind kind, std::uint64_t contents) {
  if (depth_++ > 0) return;
  open_ = {};
  open_.kind = kind;
  open_.before = contents;
}

void MapHistory::Record(ListChange change) {
  const bool mergeable =
      std::holds_alternative<LevelChange>(change) || std::holds_alternative<GeometryChange>(change);
  if (mergeable && !known_.emplace(ObjectOf(change), change.index()).second) return;
  open_.changes.push_back(std::move(change));
}

bool MapHistory::CanJoin(const Step& step, const Step& before) {
  return step.kind == before.kind &&
         std::equal(step.changes.begin(), step.changes.end(), before.changes.begin(),
                    before.changes.end(), [](const ListChange& a, const ListChange& b) {
                      return std::holds_alternative<GeometryChange>(a) &&
                             std::holds_alternative<GeometryChange>(b) &&
                             ObjectOf(a) == ObjectOf(b);
                    });
}

std::uint64_t MapHistory::End(std::uint64_t contents, bool joins) {
  if (depth_ == 0 || --depth_ > 0) return contents;
  known_.clear();
  std::erase_if(open_.changes, IsIdle);
  if (open_.changes.empty()) return open_.before;
  Forget(undone_);
  if (joins && !done_.empty() && CanJoin(open_, done_.back())) {
    return done_.back().after = contents;
  }
  open_.after = contents;
  open_.bytes = sizeof(Step);
  for (const ListChange& change : open_.changes) open_.bytes += BytesOf(change);
  bytes_ += open_.bytes;
  done_.push_back(std::exchange(open_, {}));
  while (bytes_ > memory_ && done_.size() > 1) {
    bytes_ -= done_.front().bytes;
    done_.pop_front();
  }
  return contents;
}

void MapHistory::Forget(std::deque<Step>& steps) {
  for (const Step& step : steps) bytes_ -= step.bytes;
  steps.clear();
}

std::optional<EditKind> MapHistory::UndoKind() const {
  return done_.empty() ? std::nullopt : std::optional(done_.back().kind);
}

std::optional<EditKind> MapHistory::RedoKind() const {
  return undone_.empty() ? std::nullopt : std::optional(undone_.back().kind);
}

std::optional<std::uint64_t> MapHistory::TakeBack(TDepthList& list,
                                                  std::vector<TDepthObj*>& touched) {
  if (depth_ == 0) return std::nullopt;
  for (auto change = open_.changes.rbegin(); change != open_.changes.rend(); ++change) {
    list.Exchange(*change);
  }
  Touch(list, touched, open_.changes);
  open_.changes.clear();
  known_.clear();
  return open_.before;
}

std::optional<std::uint64_t> MapHistory::Undo(TDepthList& list, std::vector<TDepthObj*>& touched) {
  if (done_.empty()) return std::nullopt;
  Step step = std::move(done_.back());
  done_.pop_back();
  for (auto change = step.changes.rbegin(); change != step.changes.rend(); ++change) {
    list.Exchange(*change);
  }
  Touch(list, touched, step.changes);
  const std::uint64_t contents = step.before;
  undone_.push_back(std::move(step));
  return contents;
}

std::optional<std::uint64_t> MapHistory::Redo(TDepthList& list, std::vector<TDepthObj*>& touched) {
  if (undone_.empty()) return std::nullopt;
  Step step = std::move(undone_.back());
  undone_.pop_back();
  for (ListChange& change : step.changes) list.Exchange(change);
  Touch(list, touched, step.changes);
  const std::uint64_t contents = step.after;
  done_.push_back(std::move(step));
  return contents;
}

}  // namespace plenovia
