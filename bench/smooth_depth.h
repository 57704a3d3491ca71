// The depth picture that the benchmarks make stereograms of.
#pragma once

#include "platform/indexed_image.h"

namespace plenovia::bench {

// Hills and a ball over a slope: levels 0..255 that change every few pixels.
IndexedImage SmoothDepth(int width, int height);

}  // namespace plenovia::bench
