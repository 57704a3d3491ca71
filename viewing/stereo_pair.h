// The scene as each eye sees it: for those who cannot fuse a stereogram.
#pragma once

#include "engine/scan_method.h"
#include "platform/indexed_image.h"
#include "viewing/level_field.h"
#include "viewing/rgb_picture.h"
#include "viewing/separation_table.h"

namespace plenovia {

struct StereoPair {
  RgbPicture left;
  RgbPicture right;
};

// Both views of the scene, covered with the pattern's tiles. What is nearer moves to the right in
// the left view and to the left in the right one; the nearest and the farthest point of a scene
// come to differ by at most a 30th of its width, the deviation that stereo photographers keep to
// (J. G. Ferwerda, The World of 3-D, 1982). Uncovered places take the farther neighbour's colours.
// The pattern must not be empty.
StereoPair CoverWithPattern(const LevelField& field, const IndexedImage& pattern,
                            const SeparationTable& separations);

// For glasses with a red left and a cyan right side: red is the brightness of the left view, green
// and blue are those of the right one. The views have one size.
RgbPicture Anaglyph(const StereoPair& pair);

}  // namespace plenovia
