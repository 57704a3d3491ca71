// What stands before the pixels of a PCX file.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "platform/result.h"

namespace plenovia {

inline constexpr std::size_t kPcxHeaderBytes = 128;

struct PcxHeader {
  int version = 0;
  bool runLength = false;
  int width = 0;
  int height = 0;
  int bits = 0;                // a pixel in each plane: 1, 2, 4 or 8
  int planes = 0;              // 1 to 4
  std::size_t planeBytes = 0;  // a row of one plane, at least as long as the pixels need
  bool saysColour = false;     // the palette is meant as colours, not as grays

  std::size_t LineBytes() const { return planeBytes * static_cast<std::size_t>(planes); }
  // Whether the planes are red, green and blue instead of the bits of an index.
  bool TrueColour() const { return planes >= 3 && bits > 1; }
  // The bits of an index.
  int IndexBits() const { return bits == 8 ? 8 : bits * planes; }
};

// Checks all that the header says, also that its pixels fit into the bytes that are there.
[[nodiscard]] Result<PcxHeader> ParsePcxHeader(std::span<const std::uint8_t> bytes);

}  // namespace plenovia
