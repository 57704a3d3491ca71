// Pattern files.
#pragma once

#include <filesystem>

#include "platform/indexed_image.h"
#include "platform/result.h"

namespace plenovia {

class TGifIntf {
 public:
  // The picture and palette of a GIF file; kUnsupported when the file is of another format.
  [[nodiscard]] static Result<IndexedImage> Read_File(const std::filesystem::path& path);
};

}  // namespace plenovia
