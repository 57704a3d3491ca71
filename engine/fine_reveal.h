// Separations to parts of a pixel, from whole ones.
#pragma once

#include "engine/reveal.h"
#include "engine/reveal_anchor.h"
#include "engine/run_monitor.h"
#include "platform/indexed_image.h"
#include "platform/pixel_buffer.h"
#include "platform/result.h"

namespace plenovia {

// One entry a pixel, rows top down: the separations of `depth`, which Reveal() found in `picture`
// with this anchor, with their parts of a pixel. Where nothing tells more, the whole one stays; in
// particular 0 stays 0. kCancelled when the monitor stopped it, kTooLarge when the memory does not
// suffice. The result is the same for any number of threads.
[[nodiscard]] Result<PixelVector<float>> FineSeparations(const IndexedImage& picture,
                                                         const RevealedDepth& depth,
                                                         RevealAnchor anchor, int threads,
                                                         RunMonitor& monitor);

}  // namespace plenovia
