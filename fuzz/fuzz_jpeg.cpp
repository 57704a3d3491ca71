// The JPEG reader refuses or reads any bytes; what it read can be written.
#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "codec/jpeg.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace plenovia;
  const auto picture = DecodeJpeg({data, size});
  if (!picture) return 0;
  if (!EncodeJpeg(*picture)) std::abort();
  return 0;
}
