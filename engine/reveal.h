// The depth found again in a finished stereogram, ours or anyone's.
#pragma once

#include <cstdint>
#include <vector>

#include "engine/run_monitor.h"
#include "engine/scan_methods.h"
#include "engine/sirds_settings.h"
#include "platform/indexed_image.h"
#include "platform/result.h"

namespace plenovia {

// Which column a matching pair of pixels (x - s, x) speaks for.
enum class RevealAnchor {
  kRight,   // x: the column whose depth made the pair in the left-to-right and McMahon methods
  kCentre,  // the middle between the two: the column in the Feucht method
};

struct RevealOptions {
  RevealAnchor anchor = RevealAnchor::kRight;
  // The separations tried, in pixels, both included. 0 for either: found from the picture.
  int smallest = 0;
  int largest = 0;
  int threads = 1;
};

// One entry a pixel, rows top down.
struct RevealedDepth {
  int width = 0;
  int height = 0;
  int smallest = 0;  // the range of separations that was tried
  int largest = 0;
  std::vector<std::uint16_t> separation;  // pixels; 0 where no pair lies inside the picture
  std::vector<std::uint8_t> certainty;    // 0 (a guess) to 255 (beyond doubt)
};

// Finds for each pixel the separation at which its row best repeats itself. kInvalid when the
// picture is too narrow for the range, kCancelled when the monitor stopped it.
[[nodiscard]] Result<RevealedDepth> Reveal(const IndexedImage& picture,
                                           const RevealOptions& options, RunMonitor& monitor);

}  // namespace plenovia
