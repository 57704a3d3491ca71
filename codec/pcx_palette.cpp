#include "codec/pcx_palette.h"

#include <algorithm>
#include <array>

namespace plenovia {

namespace {

using Bytes = std::span<const std::uint8_t>;

constexpr std::size_t kHeaderColours = 16;  // where the header's palette begins

// The 16 colours of the colour and of the enhanced graphics adapter.
constexpr std::array<Rgb, 16> kAdapterColours = {{
    {0, 0, 0},
    {0, 0, 170},
    {0, 170, 0},
    {0, 170, 170},
    {170, 0, 0},
    {170, 0, 170},
    {170, 85, 0},
    {170, 170, 170},
    {85, 85, 85},
    {85, 85, 255},
    {85, 255, 85},
    {85, 255, 255},
    {255, 85, 85},
    {255, 85, 255},
    {255, 255, 85},
    {255, 255, 255},
}};

template <std::size_t kSize>
std::array<Rgb, kSize> ReadColours(Bytes bytes) {
  std::array<Rgb, kSize> colours;
  for (std::size_t i = 0; i < kSize; ++i) {
    colours[i] = {bytes[3 * i], bytes[3 * i + 1], bytes[3 * i + 2]};
  }
  return colours;
}

bool AllZero(Bytes bytes) {
  return std::all_of(bytes.begin(), bytes.end(), [](std::uint8_t b) { return b == 0; });
}

// Four colours: the background by number, and one of the colour adapter's sets, where the header of
// early versions holds bit fields in the first bytes of its first two colours.
Palette AdapterFour(Bytes header) {
  const std::size_t background = header[kHeaderColours] >> 4;
  const std::uint8_t flags = header[kHeaderColours + 3];
  const bool white = (flags & 0x40) != 0;  // cyan, magenta, white; else green, red, brown
  const bool bright = (flags & 0x20) != 0;
  std::array<Rgb, 4> colours = {kAdapterColours[background]};
  for (std::size_t i = 1; i < 4; ++i) {
    colours[i] = kAdapterColours[2 * i + (white ? 1 : 0) + (bright ? 8 : 0)];
  }
  return Palette(colours);
}

Palette HeaderPalette(const PcxHeader& header, Bytes bytes) {
  const Bytes stored = bytes.subspan(kHeaderColours, 3 * kAdapterColours.size());
  const bool missing = header.version == 0 || header.version == 3 || AllZero(stored);
  const std::size_t count = std::size_t{1} << header.IndexBits();
  const auto colours = ReadColours<16>(stored);

  if (count == 2 && (missing || colours[0] == colours[1])) return Palette::Grays(2);
  if (count == 4 && header.planes == 1) {
    const bool bitFields = AllZero(stored.subspan(1, 2)) && AllZero(stored.subspan(4, 8));
    if (missing || bitFields) return AdapterFour(bytes);
  }
  return Palette(std::span<const Rgb>(missing ? kAdapterColours : colours).first(count));
}

Result<Palette> PaletteAtEnd(const PcxHeader& header, Bytes bytes, std::size_t pixelsEnd) {
  const std::size_t behind = bytes.size() - pixelsEnd;
  if (behind >= kPcxPaletteBytes) {
    for (const std::size_t at : {bytes.size() - kPcxPaletteBytes, pixelsEnd}) {
      if (bytes[at] == kPcxPaletteMark) return Palette(ReadColours<256>(bytes.subspan(at + 1)));
    }
  }
  const bool cutOff =
      behind > 0 && behind < kPcxPaletteBytes && bytes[pixelsEnd] == kPcxPaletteMark;
  if (header.version >= 5 && (header.saysColour || cutOff)) {
    return Failure(ErrorCode::kCorrupt, "the file is truncated");
  }
  return Palette::Grays();
}

}  // namespace

Result<Palette> ReadPcxPalette(const PcxHeader& header, Bytes bytes, std::size_t pixelsEnd) {
  if (header.IndexBits() == 8) return PaletteAtEnd(header, bytes, pixelsEnd);
  return HeaderPalette(header, bytes);
}

}  // namespace plenovia
