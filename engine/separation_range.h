// The separations that a stereogram of unknown make is likely to use.
#pragma once

#include "engine/match_cost.h"
#include "platform/indexed_image.h"

namespace plenovia {

// Looks at short pieces of rows from all over the picture and counts how many are repeated, for
// each separation up to half the width and at most 1024. The one with most repeats is taken for the
// background's; the range goes from 36 % of it, nearer than any of our scan methods brings a
// figure, to the widest separation that counts and is not the double of another. A picture without
// repeats gets the widest range.
SeparationRange FindSeparationRange(const IndexedImage& picture);

}  // namespace plenovia
