#include "platform/vector_state.h"

#if defined(__x86_64__) || defined(__i386__)
#include <immintrin.h>
#endif

namespace plenovia {

#if defined(__x86_64__) || defined(__i386__)

namespace {

[[gnu::target("avx")]] void ZeroUpperHalves() {
  _mm256_zeroupper();
}

}  // namespace

void ClearUpperVectorHalves() {
  if (__builtin_cpu_supports("avx")) ZeroUpperHalves();
}

#else

void ClearUpperVectorHalves() {}

#endif

}  // namespace plenovia
