// Patterns that come and go while a dialog is open, all of which can be undone.
#pragma once

#include <filesystem>
#include <utility>
#include <vector>

#include "images/sird_patt.h"

namespace plenovia {

// Works on the library only. What is to happen to the files is told, and left to the caller.
class PatternEdits {
 public:
  // `library` outlives the edits.
  explicit PatternEdits(TSirdPatt& library) : library_(library), opening_(library) {}

  // The library's patterns were changed, and were these before.
  void Changed(TSirdPatt before) { before_.push_back(std::move(before)); }
  // The library is as before the last change. Without one nothing happens.
  void Undo();
  bool CanUndo() const { return !before_.empty(); }

  // The files of patterns that were there since the beginning and are no longer.
  std::vector<std::filesystem::path> Dropped() const;
  // The library is as at the beginning. Gives back the files of the patterns that came since.
  std::vector<std::filesystem::path> Revert();

 private:
  TSirdPatt& library_;
  const TSirdPatt opening_;
  std::vector<TSirdPatt> before_;  // each change
  std::vector<TSirdPatt> undone_;
};

}  // namespace plenovia
