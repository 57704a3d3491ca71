#include "codec/gif.h"
#include "fuzz/picture_round_trip.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  plenovia::CheckPictureRoundTrip(plenovia::DecodeGif, plenovia::EncodeGif, {data, size});
  return 0;
}
