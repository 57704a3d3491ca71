// Depth pictures made smaller or larger.
#pragma once

#include "platform/fine_image.h"
#include "platform/result.h"

namespace plenovia {

// The picture in another size. Surfaces stay smooth and edges sharp: what lies between two pixels
// of one surface is between them in depth too, and across an edge it is one side or the other, so
// no surface appears that was not there. Two neighbours belong to different surfaces when their
// step is at least 4 levels (of 256) and more than three times the steps beside it. Columns are
// resampled after rows. Fails as FineImage::Create() does.
[[nodiscard]] Result<FineImage> ResampleLevels(const FineImage& image, int width, int height);

}  // namespace plenovia
