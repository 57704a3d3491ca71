#include "images/sird_patt.h"

#include <algorithm>
#include <utility>

#include "codec/gif_intf.h"

namespace plenovia {

namespace {

std::vector<PatternFile> FilesToTry(const PatternFolders& folders) {
  std::vector<PatternFile> files = FindPatternFiles(folders);
  for (int n = 0; n < kShippedPatterns; ++n) {
    const auto place =
        std::lower_bound(files.begin(), files.end(), n,
                         [](const PatternFile& file, int number) { return file.number < number; });
    if (place != files.end() && place->number == n) continue;
    files.insert(place, {n, folders.program / PatternFileName(n)});
  }
  return files;
}

}  // namespace

Result<void> TSirdPatt::LoadPatternFile(const PatternFile& file) {
  auto picture = TGifIntf::Read_File(file.path);
  if (!picture) return tl::unexpected(picture.error());
  entries_.push_back(
      {file.number, std::make_shared<const IndexedImage>(std::move(*picture)), file.path});
  return {};
}

void TSirdPatt::AppendPattern(std::shared_ptr<const IndexedImage> bitmap) {
  int number = 0;
  for (const Entry& entry : entries_) number = std::max(number, entry.number + 1);
  entries_.push_back({number, std::move(bitmap), {}});
}

std::shared_ptr<const IndexedImage> TSirdPatt::GetBitmap(int index) const {
  return index < 0 || index >= GetCount() ? nullptr : At(index).bitmap;
}

void TSirdPatt::RemovePattern(int index) {
  entries_.erase(entries_.begin() + index);
  if (current_ > index) --current_;
  current_ = std::min(current_, GetCount() - 1);
}

void TSirdPatt::SelectPattern(int index) {
  if (entries_.empty()) return;
  current_ = index < 0 || index >= GetCount() ? 0 : index;
}

void TSirdPatt::SelectNumber(int number) {
  const auto found = std::find_if(entries_.begin(), entries_.end(),
                                  [=](const Entry& entry) { return entry.number == number; });
  SelectPattern(static_cast<int>(found - entries_.begin()));
}

int TSirdPatt::GetCurrentIndex() const {
  return current_ < 0 ? GetCount() : current_;
}

int TSirdPatt::GetCurrentNumber() const {
  return Current() == nullptr ? 0 : Current()->number;
}

std::shared_ptr<const IndexedImage> TSirdPatt::GetCurrentBitmap() const {
  return Current() == nullptr ? nullptr : Current()->bitmap;
}

const Palette* TSirdPatt::GetCurrentPalette() const {
  return Current() == nullptr ? nullptr : &Current()->bitmap->palette();
}

const TSirdPatt::Entry* TSirdPatt::Current() const {
  return current_ < 0 ? nullptr : &entries_[static_cast<std::size_t>(current_)];
}

TSirdPatt LoadPatterns(const PatternFolders& folders, int start, const PatternProgress& progress) {
  TSirdPatt library(folders);
  const std::vector<PatternFile> files = FilesToTry(folders);
  int tried = 0;
  for (const PatternFile& file : files) {
    const bool loaded = library.LoadPatternFile(file).has_value();
    if (progress) progress(++tried, static_cast<int>(files.size()), loaded);
  }
  library.SelectNumber(start);
  return library;
}

}  // namespace plenovia
