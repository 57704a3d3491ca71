// How well a tile suits the eyes that have to find matching places along its rows.
#pragma once

#include "platform/indexed_image.h"

namespace plenovia {

// Correlations are those of red, green and blue together about their mean, 1 for an exact repeat,
// and the tile closes at its edges. Displacements count from 6 pixels on; below that neighbours are
// alike in any picture.
struct TileQuality {
  // The strongest over displacements up to half the width along the rows, with 8 rows up or down.
  double repeat = 0;
  // The strongest of any window of 24 x 12 pixels with another place on the same rows.
  double localRepeat = 0;
  // The least mean step between neighbours along the rows, in gray values of 255, of any window of
  // 8 x 8 pixels: a flat place shows no depth.
  double leastDetail = 0;
  // How much more the two sides of a seam differ than neighbours in the tile do, 1 for no more. The
  // seam is where a flat scene at the default gap repeats a part of the tile that is as wide as the
  // gap. Compared are the means of squares of 4, 8 and 16 pixels, over all places that a seam can
  // have: single pixels of different dots differ anyway, the eye sees edges of areas.
  double seam = 0;
};

// `tile` is at least 32 x 16 pixels.
TileQuality MeasureTile(const IndexedImage& tile);

// The bounds that every shipped tile meets.
inline constexpr double kMostRepeat = 0.3;
inline constexpr double kMostLocalRepeat = 0.75;
inline constexpr double kLeastDetail = 5;
inline constexpr double kMostSeam = 1.25;
inline bool IsGoodToFuse(const TileQuality& quality) {
  return quality.repeat <= kMostRepeat && quality.localRepeat <= kMostLocalRepeat &&
         quality.leastDetail >= kLeastDetail && quality.seam <= kMostSeam;
}

}  // namespace plenovia
