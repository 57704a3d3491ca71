#include "images/pattern_edits.h"

#include <set>
#include <utility>

namespace plenovia {

namespace {

using Files = std::set<std::filesystem::path>;

void AddFiles(const TSirdPatt& library, Files& files) {
  for (int i = 0; i < library.GetCount(); ++i) {
    if (!library.GetFile(i).empty()) files.insert(library.GetFile(i));
  }
}

// Of all these libraries, without those of `kept`.
std::vector<std::filesystem::path> FilesBeside(const TSirdPatt& kept,
                                               const std::vector<TSirdPatt>& all) {
  Files files;
  Files keptFiles;
  for (const TSirdPatt& library : all) AddFiles(library, files);
  AddFiles(kept, keptFiles);
  std::erase_if(files, [&](const auto& file) { return keptFiles.contains(file); });
  return {files.begin(), files.end()};
}

}  // namespace

void PatternEdits::Undo() {
  if (before_.empty()) return;
  undone_.push_back(std::exchange(library_, before_.back()));
  before_.pop_back();
}

std::vector<std::filesystem::path> PatternEdits::Dropped() const {
  std::vector<TSirdPatt> all = before_;
  all.insert(all.end(), undone_.begin(), undone_.end());
  return FilesBeside(library_, all);
}

std::vector<std::filesystem::path> PatternEdits::Revert() {
  before_.push_back(std::exchange(library_, opening_));
  return Dropped();
}

}  // namespace plenovia
