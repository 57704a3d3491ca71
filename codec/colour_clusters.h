// Groups of similar colours.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace plenovia {

using Colour = std::array<float, 3>;  // red, green, blue, each 0..255

struct WeightedColour {
  Colour colour{};
  float weight = 1;  // above 0
};

struct ColourClusters {
  std::vector<Colour> centres;
  std::vector<std::uint8_t> members;  // for each colour given, the number of its nearest centre
};

// At most `count` (1..256) centres with a small weighted sum of squared distances from the colours
// to them. Boxes are cut in two where the sum shrinks most (Wan, Wong and Prusinkiewicz, "An
// algorithm for multidimensional data clustering", ACM TOMS 14, 1988), then Lloyd's iteration
// settles them; it passes over centres too far away by the triangle inequality (Celebi, "Improving
// the performance of k-means for color quantization", Image and Vision Computing 29, 2011).
// The same on every machine with IEEE arithmetic.
ColourClusters FitClusters(std::span<const WeightedColour> colours, std::size_t count);

}  // namespace plenovia
