#include <zlib.h>

#include <cstddef>

#include "codec/png.h"
#include "fuzz/picture_round_trip.h"

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t most);

// Changes the file as usual, then sets the checksums right: behind wrong ones nothing is reached.
extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size,
                                               std::size_t most, unsigned int seed) {
  size = LLVMFuzzerMutate(data, size, most);
  if (seed % 16 == 0) return size;
  constexpr std::size_t kSignature = 8;
  constexpr std::size_t kAround = 12;  // length, name and checksum
  for (std::size_t at = kSignature; at + kAround <= size;) {
    const std::size_t length = std::size_t{data[at]} << 24 | std::size_t{data[at + 1]} << 16 |
                               std::size_t{data[at + 2]} << 8 | data[at + 3];
    if (length > size - at - kAround) break;
    const auto sum = crc32(0, data + at + 4, static_cast<uInt>(length + 4));
    for (std::size_t i = 0; i < 4; ++i) {
      data[at + 8 + length + i] = static_cast<std::uint8_t>(sum >> (24 - 8 * i));
    }
    at += kAround + length;
  }
  return size;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto encode = [](const plenovia::IndexedImage& picture) {
    return plenovia::EncodePng(picture);
  };
  plenovia::CheckPictureRoundTrip(plenovia::DecodePng, encode, {data, size});
  return 0;
}
