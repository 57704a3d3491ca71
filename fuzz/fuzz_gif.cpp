#include "codec/gif.h"
#include "fuzz/picture_round_trip.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto encode = [](const plenovia::IndexedImage& picture) {
    return plenovia::EncodeGif(picture);
  };
  plenovia::CheckPictureRoundTrip(plenovia::DecodeGif, encode, {data, size});
  return 0;
}
