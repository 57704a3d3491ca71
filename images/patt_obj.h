// One pattern of the library.
#pragma once

#include <memory>
#include <utility>

#include "depthmap/link_obj.h"
#include "platform/indexed_image.h"

namespace plenovia {

class TPattObj : public TLinkObj {
 public:
  explicit TPattObj(std::shared_ptr<const IndexedImage> bitmap) : bitmap_(std::move(bitmap)) {}
  const std::shared_ptr<const IndexedImage>& GetBitmap() const { return bitmap_; }

 private:
  std::shared_ptr<const IndexedImage> bitmap_;
};

}  // namespace plenovia
