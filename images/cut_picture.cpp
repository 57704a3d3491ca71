#include "images/cut_picture.h"

#include <algorithm>
#include <cstdint>

namespace plenovia {

namespace {

struct Stretch {
  std::int64_t first;
  std::int64_t count;  // below 1 when nothing is left
};

// What of a side of `side` pixels lies from one end to the other.
Stretch Clip(std::int64_t oneEnd, std::int64_t otherEnd, int side) {
  const std::int64_t first = std::max<std::int64_t>(0, std::min(oneEnd, otherEnd));
  const std::int64_t end = std::min<std::int64_t>(side, std::max(oneEnd, otherEnd));
  return {first, end - first};
}

}  // namespace

Result<IndexedImage> CutPicture(const IndexedImage& picture, const PixelRect& part) {
  const bool whole = part.left == part.right || part.top == part.bottom;
  if (whole && !picture.empty()) return picture;
  const Stretch columns = Clip(part.left, part.right, picture.width());
  const Stretch rows = Clip(part.top, part.bottom, picture.height());
  if (columns.count < 1 || rows.count < 1) {
    return Failure(ErrorCode::kInvalid, "There is nothing of the picture to cut.");
  }
  auto cut = IndexedImage::Create(static_cast<int>(columns.count), static_cast<int>(rows.count),
                                  picture.palette());
  for (int y = 0; cut && y < cut->height(); ++y) {
    const auto row = picture.Row(static_cast<int>(rows.first) + y);
    std::copy_n(row.begin() + columns.first, columns.count, cut->Row(y).begin());
  }
  return cut;
}

}  // namespace plenovia
