// The state of the vector registers between code of different makers.
#pragma once

namespace plenovia {

// On x86 processors with AVX, code that was compiled for SSE runs several times slower after AVX
// code that left the upper halves of the vector registers in use, as Qt's filling of areas does.
// Long arithmetic calls this after painting. Does nothing on other processors.
void ClearUpperVectorHalves();

}  // namespace plenovia
