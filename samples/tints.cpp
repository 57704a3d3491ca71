#include "samples/tints.h"

#include <cstdint>
#include <vector>

namespace plenovia {
namespace {

std::uint8_t Between(std::uint8_t from, std::uint8_t to, int step, int steps) {
  return static_cast<std::uint8_t>((from * (steps - step) + to * step + steps / 2) / steps);
}

}  // namespace

Palette Tints(std::initializer_list<TintStop> stops) {
  std::vector<Rgb> colours;
  const TintStop* from = stops.begin();
  for (const TintStop* to = from + 1; to != stops.end(); from = to++) {
    const int steps = to->index - from->index;
    for (int step = 0; step < steps; ++step) {
      colours.push_back({Between(from->colour.red, to->colour.red, step, steps),
                         Between(from->colour.green, to->colour.green, step, steps),
                         Between(from->colour.blue, to->colour.blue, step, steps)});
    }
  }
  colours.push_back(from->colour);
  return Palette(colours);
}

}  // namespace plenovia
