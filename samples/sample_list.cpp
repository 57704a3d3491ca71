#include "samples/sample_list.h"

#include <cstdint>
#include <vector>

#include "samples/tints.h"

namespace plenovia {
namespace {

// The tints of an atlas: sea, shore, plains, hills, rock, snow.
Palette AtlasTints() {
  return Tints({{0, {22, 66, 122}},
                {5, {120, 190, 220}},
                {6, {226, 214, 160}},
                {8, {112, 168, 86}},
                {18, {62, 128, 62}},
                {28, {186, 182, 96}},
                {40, {160, 112, 62}},
                {52, {120, 84, 66}},
                {58, {214, 208, 204}},
                {63, {255, 255, 255}}});
}

}  // namespace

std::span<const PictureSample> PictureSamples() {
  static const std::vector<PictureSample> kSamples = {
      {"island.png", 800, 600, AtlasTints(), IslandScene},
  };
  return kSamples;
}

std::span<const MapSample> MapSamples() {
  return {};
}

Result<IndexedImage> DrawSample(const PictureSample& sample) {
  Result<IndexedImage> picture = IndexedImage::Create(sample.width, sample.height, sample.palette);
  if (!picture) return picture;
  const LevelFunction level = sample.scene(sample.width, sample.height);
  for (int y = 0; y < sample.height; ++y) {
    const std::span<std::uint8_t> row = picture->Row(y);
    for (int x = 0; x < sample.width; ++x) {
      row[static_cast<std::size_t>(x)] = static_cast<std::uint8_t>(level(x, y));
    }
  }
  return picture;
}

}  // namespace plenovia
