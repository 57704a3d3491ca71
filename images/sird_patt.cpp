#include "images/sird_patt.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "codec/gif_intf.h"
#include "images/pattern_files.h"

namespace plenovia {

namespace {

TPattObj* NextOf(TPattObj* entry) {
  return static_cast<TPattObj*>(entry->GetNext());
}

std::vector<std::filesystem::path> FilesToTry(const std::filesystem::path& directory,
                                              const std::filesystem::path& userFolder, int count) {
  const std::vector<int> added = PatternNumbersIn(userFolder);
  const int shipped = std::max(std::min(count, kMostPatternFiles) - static_cast<int>(added.size()),
                               kShippedPatterns);
  std::vector<std::filesystem::path> files;
  for (int n = 0; n < shipped; ++n) files.push_back(directory / PatternFileName(n));
  for (const int n : added) files.push_back(userFolder / PatternFileName(n));
  return files;
}

}  // namespace

TSirdPatt::TSirdPatt(TSirdPatt&& other) noexcept {
  *this = std::move(other);
}

TSirdPatt& TSirdPatt::operator=(TSirdPatt&& other) noexcept {
  std::swap(directory_, other.directory_);
  std::swap(first_, other.first_);
  std::swap(current_, other.current_);
  return *this;
}

TSirdPatt::~TSirdPatt() {
  if (first_ != nullptr) first_->DeleteRest();
  delete first_;
}

Result<void> TSirdPatt::LoadPatternFile(const std::filesystem::path& name) {
  auto picture = TGifIntf::Read_File(directory_ / name);
  if (!picture) return tl::unexpected(picture.error());
  AppendPattern(std::make_shared<const IndexedImage>(std::move(*picture)));
  return {};
}

void TSirdPatt::AppendPattern(std::shared_ptr<const IndexedImage> bitmap) {
  auto* entry = new TPattObj(std::move(bitmap));
  if (first_ == nullptr) {
    first_ = entry;
    return;
  }
  TLinkObj* last = first_->GetLast();
  last->SetNext(entry);
  entry->SetPrev(last);
}

void TSirdPatt::SelectPattern(int index) {
  current_ = first_;
  if (index < 0 || index >= GetCount()) return;
  for (int i = 0; i < index; ++i) current_ = NextOf(current_);
}

int TSirdPatt::GetCurrentIndex() const {
  int index = 0;
  for (TPattObj* entry = first_; entry != nullptr && entry != current_; entry = NextOf(entry)) {
    ++index;
  }
  return index;
}

int TSirdPatt::GetCount() const {
  int count = 0;
  for (TPattObj* entry = first_; entry != nullptr; entry = NextOf(entry)) ++count;
  return count;
}

std::shared_ptr<const IndexedImage> TSirdPatt::GetCurrentBitmap() const {
  return current_ == nullptr ? nullptr : current_->GetBitmap();
}

const Palette* TSirdPatt::GetCurrentPalette() const {
  return current_ == nullptr ? nullptr : &current_->GetBitmap()->palette();
}

TSirdPatt LoadPatterns(const std::filesystem::path& directory,
                       const std::filesystem::path& userFolder, int start, int count,
                       const PatternProgress& progress) {
  TSirdPatt library(directory);
  const std::vector<std::filesystem::path> files = FilesToTry(directory, userFolder, count);
  const int all = static_cast<int>(files.size());
  for (int tried = 0; tried < all; ++tried) {
    const bool loaded = library.LoadPatternFile(files[static_cast<std::size_t>(tried)]).has_value();
    if (!loaded) start = 0;
    if (progress) progress(tried + 1, all, loaded);
  }
  library.SelectPattern(start);
  return library;
}

}  // namespace plenovia
