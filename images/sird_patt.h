// The pattern library: the tiles that stereograms are made of, in a fixed order, one of them
// current.
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "images/pattern_files.h"
#include "platform/indexed_image.h"
#include "platform/result.h"

namespace plenovia {

class TSirdPatt {
 public:
  // Empty. New pattern files go to one of `folders`.
  explicit TSirdPatt(PatternFolders folders = {}) : folders_(std::move(folders)) {}

  const PatternFolders& GetFolders() const { return folders_; }

  // Reads a GIF file and appends it under the file's number. On failure the library is unchanged.
  [[nodiscard]] Result<void> LoadPatternFile(const PatternFile& file);
  // The picture becomes the last entry, with the number after the highest; the current one stays.
  void AppendPattern(std::shared_ptr<const IndexedImage> bitmap);

  // Makes the entry at this position (from 0) current, the first one when there is no such
  // position.
  void SelectPattern(int index);
  // The same for the entry of this number: the first one of several.
  void SelectNumber(int number);
  // The position of the current entry; without one, the number of entries.
  int GetCurrentIndex() const;
  // The number of the current entry's file: its position as long as no file is missing. 0 without a
  // current entry.
  int GetCurrentNumber() const;
  int GetCount() const { return static_cast<int>(entries_.size()); }
  // The tile at this position, or null when there is no such position.
  std::shared_ptr<const IndexedImage> GetBitmap(int index) const;
  // Of the entry at this position, which exists. A pattern that was appended without a file has an
  // empty path.
  int GetNumber(int index) const { return At(index).number; }
  const std::filesystem::path& GetFile(int index) const { return At(index).file; }
  // The user's own, not one that ships.
  bool IsOwn(int index) const { return GetNumber(index) >= kShippedPatterns; }
  // Takes the entry at this position out of the library; its file stays. When it was the current
  // one, the next becomes current.
  void RemovePattern(int index);
  // The current tile with its palette, or null.
  std::shared_ptr<const IndexedImage> GetCurrentBitmap() const;
  // Its palette, or null; valid as long as the tile.
  const Palette* GetCurrentPalette() const;

 private:
  struct Entry {
    int number;
    std::shared_ptr<const IndexedImage> bitmap;
    std::filesystem::path file;
  };
  const Entry& At(int index) const { return entries_[static_cast<std::size_t>(index)]; }
  const Entry* Current() const;

  PatternFolders folders_;
  std::vector<Entry> entries_;
  int current_ = -1;  // -1: none
};

// Called after each file that was tried, with the number of files tried so far and in all, and
// whether this one was loaded.
using PatternProgress = std::function<void(int done, int count, bool loaded)>;

// The library of all pattern files, by number. The shipped ones are tried even where they are
// missing; what cannot be read is left out. The tile of number `start` becomes current, the first
// one when there is none of that number.
TSirdPatt LoadPatterns(const PatternFolders& folders, int start,
                       const PatternProgress& progress = {});

}  // namespace plenovia
