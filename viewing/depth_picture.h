// The depth levels as a picture.
#pragma once

#include "engine/scan_method.h"
#include "viewing/level_field.h"
#include "viewing/rgb_picture.h"

namespace plenovia {

inline constexpr std::uint32_t kTooFarColour = OpaqueColour(52, 101, 178);
inline constexpr std::uint32_t kTooNearColour = OpaqueColour(232, 126, 32);

// Gray, from black at the lower end of the range to white at the upper one. Levels below it have
// kTooFarColour, those above it kTooNearColour.
RgbPicture DepthPicture(const LevelField& field, LevelRange range);

}  // namespace plenovia
