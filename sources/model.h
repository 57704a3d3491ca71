// Depth from a model, seen from any side.
#pragma once

#include "platform/fine_image.h"
#include "platform/result.h"
#include "sources/mesh.h"

namespace plenovia {

inline constexpr double kWidestPerspective = 120;

// In degrees. At first the model is seen from the front.
struct ModelView {
  double turn = 0;         // of the model about its upright axis, its front to the right; -360..360
  double tilt = 0;         // then of its top towards the viewer; -360..360
  double perspective = 0;  // the angle that the longer side of the picture spans; 0 is parallel
};

// The model as large as fits with a margin, in front of the far plane: what of it is farthest from
// the viewer has a tenth of the highest level, the nearest corner all of it, and between them
// levels go with the distance along the line of sight. Both sides of a triangle are seen. A pixel
// shows what lies at its middle. The result is the same for any number of threads. Fails as
// FineImage::Create() does, and with kInvalid for a model without extent or angles out of their
// limits.
[[nodiscard]] Result<FineImage> DrawModel(const Mesh& mesh, const ModelView& view, int width,
                                          int height, int threads);

}  // namespace plenovia
