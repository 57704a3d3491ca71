#include "codec/packed_bits.h"

#include <algorithm>

namespace plenovia {

namespace {

template <int kBits>
void Unpack(std::span<const std::uint8_t> packed, std::span<std::uint8_t> pixels) {
  constexpr std::size_t kPerByte = 8 / kBits;
  for (std::size_t i = 0; i < pixels.size(); ++i) {
    const std::size_t down = (kPerByte - 1 - i % kPerByte) * kBits;
    pixels[i] = static_cast<std::uint8_t>(packed[i / kPerByte] >> down & ((1 << kBits) - 1));
  }
}

}  // namespace

void UnpackBits(std::span<const std::uint8_t> packed, int bits, std::span<std::uint8_t> pixels) {
  switch (bits) {
    case 1:
      return Unpack<1>(packed, pixels);
    case 2:
      return Unpack<2>(packed, pixels);
    case 4:
      return Unpack<4>(packed, pixels);
    default:
      std::copy_n(packed.begin(), pixels.size(), pixels.begin());
  }
}

}  // namespace plenovia
