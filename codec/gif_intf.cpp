#include "codec/gif_intf.h"

#include "codec/gif.h"
#include "codec/graph_io.h"
#include "platform/file_io.h"

namespace plenovia {

Result<IndexedImage> TGifIntf::Read_File(const std::filesystem::path& path) {
  const auto bytes = ReadFile(path);
  if (!bytes) return tl::unexpected(bytes.error());
  if (!LooksLikeGif(*bytes)) return Failure(ErrorCode::kUnsupported, "The file is not a GIF file.");
  return DecodePicture(*bytes);
}

}  // namespace plenovia
