#include "codec/pcx.h"
#include "fuzz/picture_round_trip.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  plenovia::CheckPictureRoundTrip(plenovia::DecodePcx, plenovia::EncodePcx, {data, size});
  return 0;
}
