// A pattern tile in true colour while it is made.
#pragma once

#include <vector>

#include "platform/palette.h"
#include "sirdspat/colour.h"
#include "sirdspat/noise.h"

namespace plenovia {

struct Tile {
  Torus size;
  std::vector<Rgb> pixels;  // rows top down
};

// Asks colour(x, y) at samples x samples places of each pixel and takes the mean.
template <class Shader>
Tile RenderTile(Torus size, int samples, const Shader& colour) {
  Tile tile{size, {}};
  tile.pixels.reserve(static_cast<std::size_t>(size.width) * static_cast<std::size_t>(size.height));
  for (int y = 0; y < size.height; ++y) {
    for (int x = 0; x < size.width; ++x) {
      Tint sum;
      for (int i = 0; i < samples * samples; ++i) {
        sum = sum + colour(x + (i % samples + 0.5) / samples, y + (i / samples + 0.5) / samples);
      }
      tile.pixels.push_back(ToRgb(sum * (1.0 / (samples * samples))));
    }
  }
  return tile;
}

}  // namespace plenovia
