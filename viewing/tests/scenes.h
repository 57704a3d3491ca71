// Small scenes and tiles for the tests of this room.
#pragma once

#include <cstdint>

#include "platform/indexed_image.h"
#include "platform/random.h"
#include "viewing/level_field.h"

namespace plenovia {

// level(x, y) at each point.
template <class Level>
LevelField FieldOf(int width, int height, const Level& level) {
  LevelField field(width, height);
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) field.Row(y)[static_cast<std::size_t>(x)] = level(x, y);
  }
  return field;
}

// A box of `level` in the middle third of a ground of level 0.
inline LevelField BoxScene(int width, int height, std::int32_t level) {
  return FieldOf(width, height, [=](int x, int y) {
    const bool inside =
        x >= width / 3 && x < width - width / 3 && y >= height / 3 && y < height - height / 3;
    return inside ? level : 0;
  });
}

// Even noise in grays.
inline IndexedImage NoiseTile(int width, int height) {
  Random random(5);
  IndexedImage tile = IndexedImage::Create(width, height, Palette::Grays()).value();
  for (auto& pixel : tile.pixels()) pixel = random.Byte();
  return tile;
}

}  // namespace plenovia
