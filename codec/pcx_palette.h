// The colours of PCX pictures that have indexes.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "codec/pcx_header.h"
#include "platform/palette.h"
#include "platform/result.h"

namespace plenovia {

// The palette of 256 colours at the end of a file: this byte, then red, green and blue of each.
inline constexpr std::uint8_t kPcxPaletteMark = 0x0c;
inline constexpr std::size_t kPcxPaletteBytes = 1 + 3 * 256;

// `bytes` is the whole file and `pixelsEnd` the place where its pixels end. Up to 16 colours stand
// in the header; where they are missing, or the version has none, those of the display adapters of
// its time hold. 256 colours stand at the end of the file; where they are missing the picture is
// gray, unless the header speaks of colours: then the file is truncated.
[[nodiscard]] Result<Palette> ReadPcxPalette(const PcxHeader& header,
                                             std::span<const std::uint8_t> bytes,
                                             std::size_t pixelsEnd);

}  // namespace plenovia
