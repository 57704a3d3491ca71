#include "engine/reveal_vectors.h"

namespace plenovia {

extern const RevealKernels kBaselineRevealKernels;
constinit const RevealKernels kBaselineRevealKernels = kVectorRevealKernels;

}  // namespace plenovia
