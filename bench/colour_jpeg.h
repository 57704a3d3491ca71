// Photographs as a camera stores them.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace plenovia::bench {

// The bytes of a baseline JPEG file of a landscape with noise: quality 90, colours at half the
// resolution.
std::vector<std::uint8_t> ColourJpeg(int width, int height);

// Has the library decode all rows of such a file, and keeps none.
void ReadJpegRows(std::span<const std::uint8_t> file);

}  // namespace plenovia::bench
