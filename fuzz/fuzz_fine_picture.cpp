// Depth pictures of fine levels: what is read can be resampled and turned round.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "sources/fine_picture.h"
#include "sources/heights.h"
#include "sources/resample.h"

namespace plenovia {
namespace {

void Require(bool condition) {
  if (!condition) std::abort();
}

void Try(std::span<const std::uint8_t> bytes) {
  auto decoded = DecodeFinePicture(bytes, Nearness::kBright);
  const auto dark = DecodeFinePicture(bytes, Nearness::kDark);
  Require(decoded.has_value() == dark.has_value());
  if (!decoded || decoded->image.pixels().size() > 1 << 20) return;
  StretchLevels(decoded->image);
  const auto other = ResampleLevels(decoded->image, 17, 13);
  Require(other.has_value());
  const auto [lowest, highest] = std::ranges::minmax(decoded->image.pixels());
  const auto [low, high] = std::ranges::minmax(other->pixels());
  Require(low >= lowest && high <= highest);
}

}  // namespace
}  // namespace plenovia

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  plenovia::Try({data, size});
  return 0;
}
