// Gray pictures.
#pragma once

#include "platform/palette.h"

namespace plenovia {

// Each colour as the gray of its brightness: 0.299 red + 0.587 green + 0.114 blue, the fraction cut
// off.
Palette GrayPalette(const Palette& palette);

}  // namespace plenovia
