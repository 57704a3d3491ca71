#include "depthmap/map_clip.h"

#include <utility>

#include "depthmap/depth_map_file.h"
#include "depthmap/selection_edits.h"

namespace plenovia {

Result<ByteBuffer> EncodeObjects(std::vector<std::unique_ptr<TDepthObj>> objects) {
  if (objects.empty()) return Failure(ErrorCode::kInvalid, "There is nothing to copy.");
  return EncodeDepthMap(TDepthList(std::move(objects)));
}

Result<std::vector<std::unique_ptr<TDepthObj>>> DecodeObjects(std::span<const std::uint8_t> bytes) {
  const Result<DepthMapContents> contents = DecodeDepthMap(bytes);
  if (!contents) return tl::unexpected(contents.error());
  if (contents->damaged) {
    return Failure(ErrorCode::kCorrupt, "The shapes are not whole.");
  }
  std::vector<std::unique_ptr<TDepthObj>> objects;
  for (const TDepthObj* object = contents->list.Head(); object != nullptr;
       object = TDepthList::Below(*object)) {
    objects.push_back(Copied(*object));
  }
  return objects;
}

}  // namespace plenovia
