// Depth pictures of solids.
#pragma once

#include <functional>

#include "platform/indexed_image.h"
#include "platform/result.h"
#include "samples/solids.h"

namespace plenovia {

// A view by parallel rays: what lies at `target` is in the middle of the picture, `height` units
// of the scene fill it from top to bottom, and the eye looks down by `tilt` (radians).
struct View {
  Vec target;
  double height = 4;
  double tilt = 0;
  double nearest = 3;    // from the target towards the eye: shown white
  double farthest = -3;  // shown black
};

inline constexpr int kSampleWidth = 800;
inline constexpr int kSampleHeight = 600;

// `distance` is the signed distance of all solids of the scene.
[[nodiscard]] Result<IndexedImage> RenderDepth(const std::function<double(const Vec&)>& distance,
                                               const View& view);

}  // namespace plenovia
