// Compiled for processors with AVX2: what stands here must not run on others.
#include "engine/reveal_vectors.h"

namespace plenovia {

extern const RevealKernels kAvx2RevealKernels;
constinit const RevealKernels kAvx2RevealKernels = kVectorRevealKernels;

}  // namespace plenovia
