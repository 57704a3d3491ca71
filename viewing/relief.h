// The depth as a lit surface.
#pragma once

#include "engine/scan_method.h"
#include "viewing/level_field.h"
#include "viewing/rgb_picture.h"

namespace plenovia {

// From where the surface is seen. Angles in degrees.
struct ReliefView {
  double turn = -20;  // about the upright axis, any number
  double tilt = 16;   // from above, -89..89
  double zoom = 1;    // 1: all of it fits the picture; 0.2..20
  bool operator==(const ReliefView&) const = default;
};

// Seen from far away, so lines that are parallel stay so. Light comes from the upper left. Heights
// are levels within the range, averaged over the cells of a grid of at most 256 x 256 points, and
// the whole range is as deep as 0.3 of the shorter side. Numbers out of their ranges are clamped.
RgbPicture Relief(const LevelField& field, LevelRange range, ReliefView view, int width,
                  int height);

}  // namespace plenovia
