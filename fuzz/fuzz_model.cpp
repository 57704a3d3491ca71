// Models: what is read keeps its promises and can be seen from anywhere. The first byte names the
// format.
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "sources/model.h"

namespace plenovia {
namespace {

void Require(bool condition) {
  if (!condition) std::abort();
}

void Try(ModelFormat format, std::span<const std::uint8_t> bytes) {
  const auto mesh = DecodeModel(format, bytes);
  if (!mesh) {
    Require(!mesh.error().message.empty());
    return;
  }
  Require(!mesh->triangles.empty());
  for (const Corner& c : mesh->corners) {
    Require(std::isfinite(c.x) && std::isfinite(c.y) && std::isfinite(c.z));
  }
  for (const auto& triangle : mesh->triangles) {
    for (const std::uint32_t corner : triangle) Require(corner < mesh->corners.size());
  }
  for (const ModelView& view : {ModelView{}, ModelView{30, -70, 60}}) {
    const auto image = DrawModel(*mesh, view, 32, 24, 1);
    if (image) Require(image->width() == 32 && image->height() == 24);
  }
}

}  // namespace
}  // namespace plenovia

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using plenovia::ModelFormat;
  if (size == 0) return 0;
  constexpr ModelFormat kFormats[] = {ModelFormat::kStl, ModelFormat::kObj, ModelFormat::kPly};
  plenovia::Try(kFormats[data[0] % 3], {data + 1, size - 1});
  return 0;
}
