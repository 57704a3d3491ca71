// The table of samples: which file shows what.
#pragma once

#include <filesystem>
#include <span>

#include "depthmap/depth_list.h"
#include "platform/indexed_image.h"
#include "platform/result.h"
#include "samples/scenes.h"

namespace plenovia {

// A depth picture: the index of a pixel is its depth level. The file's name tells the format.
struct PictureSample {
  const char* file;
  int width;
  int height;
  Palette palette;
  LevelFunction (*scene)(int width, int height);
};

struct MapSample {
  const char* file;
  TDepthList (*map)();
};

std::span<const PictureSample> PictureSamples();
std::span<const MapSample> MapSamples();

[[nodiscard]] Result<IndexedImage> DrawSample(const PictureSample& sample);

}  // namespace plenovia
