// Compiled for processors with AVX-512 for bytes and words: what stands here must not run on
// others.
#include "engine/reveal_vectors.h"

namespace plenovia {

extern const RevealKernels kAvx512RevealKernels;
constinit const RevealKernels kAvx512RevealKernels = kVectorRevealKernels;

}  // namespace plenovia
