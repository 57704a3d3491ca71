#include "engine/reveal_kernels.h"

#include <algorithm>
#include <array>

namespace plenovia {

extern const RevealKernels kBaselineRevealKernels;
#if defined(__x86_64__)
extern const RevealKernels kAvx2RevealKernels;
extern const RevealKernels kAvx512RevealKernels;
#endif

std::span<const RevealKernels* const> UsableRevealKernels() {
#if defined(__x86_64__)
  static constexpr std::array kAll{&kBaselineRevealKernels, &kAvx2RevealKernels,
                                   &kAvx512RevealKernels};
  if (!__builtin_cpu_supports("avx2")) return std::span(kAll).first(1);
  return std::span(kAll).first(__builtin_cpu_supports("avx512bw") ? 3 : 2);
#else
  static constexpr std::array kAll{&kBaselineRevealKernels};
  return kAll;
#endif
}

const RevealKernels& FastestRevealKernels(std::size_t count) {
  const auto kinds = UsableRevealKernels();
  const auto fits = [&](const RevealKernels* kind) {
    return kind->Lanes(count) <= (count + 31) / 32 * 32;
  };
  return **std::find_if(kinds.rbegin(), kinds.rend(), fits);
}

}  // namespace plenovia
