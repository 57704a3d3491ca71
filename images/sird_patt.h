// The pattern library: the tiles that stereograms are made of, in a fixed order, one of them
// current.
#pragma once

#include <filesystem>
#include <functional>
#include <memory>

#include "images/patt_obj.h"
#include "platform/indexed_image.h"
#include "platform/result.h"

namespace plenovia {

class TSirdPatt {
 public:
  // Empty. Pattern files lie in `directory`.
  explicit TSirdPatt(std::filesystem::path directory) : directory_(std::move(directory)) {}
  TSirdPatt(TSirdPatt&& other) noexcept;
  TSirdPatt& operator=(TSirdPatt&& other) noexcept;
  ~TSirdPatt();

  const std::filesystem::path& GetDirectory() const { return directory_; }

  // Reads a GIF file and appends it; a relative name lies in the directory. On failure the library
  // is unchanged.
  [[nodiscard]] Result<void> LoadPatternFile(const std::filesystem::path& name);
  // The picture becomes the last entry; the current one stays.
  void AppendPattern(std::shared_ptr<const IndexedImage> bitmap);

  // Makes the entry at this position (from 0) current, the first one when there is no such
  // position.
  void SelectPattern(int index);
  // The position of the current entry; without one, the number of entries.
  int GetCurrentIndex() const;
  int GetCount() const;
  // The current tile with its palette, or null.
  std::shared_ptr<const IndexedImage> GetCurrentBitmap() const;
  // Its palette, or null; valid as long as the tile.
  const Palette* GetCurrentPalette() const;

 private:
  std::filesystem::path directory_;
  TPattObj* first_ = nullptr;  // owned, with all that follows it
  TPattObj* current_ = nullptr;
};

// Called after each file that was tried, with the number of files tried so far and in all, and
// whether this one was loaded.
using PatternProgress = std::function<void(int done, int count, bool loaded)>;

// The library of the directory's files and, after them, of all that lie in the user's folder:
// `count` files in all (at most 10000), but never less than 20 of the directory, from number 0 on.
// Files that are missing or cannot be read are passed over; when there was one, the first pattern
// becomes current, else the one at `start`.
TSirdPatt LoadPatterns(const std::filesystem::path& directory,
                       const std::filesystem::path& userFolder, int start, int count,
                       const PatternProgress& progress = {});

}  // namespace plenovia
