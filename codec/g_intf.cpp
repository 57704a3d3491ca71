#include "codec/g_intf.h"

#include <algorithm>
#include <vector>

#include "codec/packed_bits.h"

namespace plenovia {

namespace {

Result<void> CheckRow(std::size_t pixels, int bits, std::size_t rowBytes) {
  if (bits != 1 && bits != 4 && bits != 8) {
    return Failure(ErrorCode::kInvalid, "A row has 1, 4 or 8 bits a pixel.");
  }
  if (rowBytes < PackedBytes(pixels, bits)) {
    return Failure(ErrorCode::kInvalid, "A row is too short for its pixels.");
  }
  return {};
}

std::uint8_t Step(int step, int steps) {
  return static_cast<std::uint8_t>(255 * step / (steps - 1));
}

}  // namespace

Result<void> TGIntf::BmpDecode(std::span<const std::uint8_t> row, int bitsPerPixel,
                               std::span<std::uint8_t> pixels) {
  if (auto fits = CheckRow(pixels.size(), bitsPerPixel, row.size()); !fits) return fits;
  UnpackBits(row, bitsPerPixel, pixels);
  return {};
}

Result<void> TGIntf::BmpEncode(std::span<const std::uint8_t> pixels, int bitsPerPixel,
                               std::span<std::uint8_t> row) {
  if (auto fits = CheckRow(pixels.size(), bitsPerPixel, row.size()); !fits) return fits;
  std::fill(row.begin(), row.end(), std::uint8_t{0});
  const auto bits = static_cast<unsigned>(bitsPerPixel);
  const unsigned perByte = 8 / bits;
  for (std::size_t x = 0; x < pixels.size(); ++x) {
    const unsigned shift = (perByte - 1 - static_cast<unsigned>(x % perByte)) * bits;
    const unsigned value = (pixels[x] & ((1u << bits) - 1)) << shift;
    row[x / perByte] = static_cast<std::uint8_t>(row[x / perByte] | value);
  }
  return {};
}

Palette TGIntf::GetDevicePalette(int count) {
  count = std::clamp(count, 2, 256);
  std::vector<Rgb> colours;
  if (count <= 16) {
    if (count == 2) return Palette::Grays(2);
    for (int i = 0; i < 16; ++i) {
      const int on = i < 8 ? 128 : 255;
      const auto part = [&](int bit) { return static_cast<std::uint8_t>((i >> bit & 1) * on); };
      colours.push_back({part(0), part(1), part(2)});
    }
    colours[7] = {192, 192, 192};
    colours[8] = {128, 128, 128};
    return Palette(std::span(colours).first(static_cast<std::size_t>(count)));
  }
  int side = 2;
  while ((side + 1) * (side + 1) * (side + 1) <= count) ++side;
  for (int i = 0; i < side * side * side; ++i) {
    colours.push_back(
        {Step(i / (side * side), side), Step(i / side % side, side), Step(i % side, side)});
  }
  const int grays = count - static_cast<int>(colours.size());
  for (int i = 1; i <= grays; ++i) {
    const std::uint8_t level = Step(i, grays + 2);
    colours.push_back({level, level, level});
  }
  return Palette(colours);
}

}  // namespace plenovia
