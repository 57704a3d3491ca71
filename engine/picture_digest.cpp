#include "engine/picture_digest.h"

namespace plenovia {

namespace {

class Fnv1a {
 public:
  void Add(std::uint8_t byte) {
    constexpr std::uint64_t kPrime = 0x100000001b3;
    value_ = (value_ ^ byte) * kPrime;
  }
  void AddNumber(std::uint32_t number) {
    for (int shift = 0; shift < 32; shift += 8) Add(static_cast<std::uint8_t>(number >> shift));
  }
  std::uint64_t value() const { return value_; }

 private:
  std::uint64_t value_ = 0xcbf29ce484222325;
};

}  // namespace

std::uint64_t PictureDigest(const IndexedImage& picture) {
  Fnv1a digest;
  digest.AddNumber(static_cast<std::uint32_t>(picture.width()));
  digest.AddNumber(static_cast<std::uint32_t>(picture.height()));
  const Palette palette = picture.palette().Widened();
  for (const Rgb colour : palette.entries()) {
    for (const std::uint8_t part : {colour.red, colour.green, colour.blue}) digest.Add(part);
  }
  for (const std::uint8_t pixel : picture.pixels()) digest.Add(pixel);
  return digest.value();
}

}  // namespace plenovia
