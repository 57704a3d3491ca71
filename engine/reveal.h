// The depth found again in a finished stereogram, ours or anyone's.
#pragma once

#include <cstdint>

#include "engine/match_cost.h"
#include "engine/run_monitor.h"
#include "engine/sirds_settings.h"
#include "platform/indexed_image.h"
#include "platform/pixel_buffer.h"
#include "platform/result.h"

namespace plenovia {

struct RevealOptions {
  RevealAnchor anchor = RevealAnchor::kRight;
  // The separations tried, in pixels, both included. With 0 for either, both
  // are found from the picture.
  int smallest = 0;
  int largest = 0;
  int threads = 1;  // the result is the same for any number
};

// One entry a pixel, rows top down.
struct RevealedDepth {
  int width = 0;
  int height = 0;
  int smallest = 0;  // the range of separations that was tried
  int largest = 0;
  PixelVector<std::uint16_t> separation;  // pixels; 0 where no pair lies inside the picture
  PixelVector<std::uint8_t> certainty;    // 0 (a guess) to 255 (beyond doubt)
};

// Finds for each pixel the separation at which its row, together with its neighbours, best repeats
// itself; of several that are equally good, the smallest. kInvalid when the picture is empty or
// the range is upside down or holds more than 1024 separations, kTooLarge when the memory does not
// suffice, kCancelled when the monitor stopped it. The monitor hears the start, steps of at least
// 10 percent and, also after a failure, the end.
[[nodiscard]] Result<RevealedDepth> Reveal(const IndexedImage& picture,
                                           const RevealOptions& options, RunMonitor& monitor);

}  // namespace plenovia
