#include "engine/distance_stretches.h"

#include <bit>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace plenovia {

namespace {

constexpr std::size_t kColumns = 64;  // looked at together

// Bit i tells whether at[i] differs from at[i - 1].
std::uint64_t Changes(const std::uint8_t* at) {
  std::uint64_t same = 0;
#ifdef __SSE2__
  for (int part = 0; part < 4; ++part) {
    const auto* here = reinterpret_cast<const __m128i*>(at + 16 * part);
    const auto* before = reinterpret_cast<const __m128i*>(at + 16 * part - 1);
    const __m128i equal = _mm_cmpeq_epi8(_mm_loadu_si128(here), _mm_loadu_si128(before));
    same |= static_cast<std::uint64_t>(_mm_movemask_epi8(equal)) << (16 * part);
  }
#else
  for (std::size_t i = 0; i < kColumns; ++i) {
    same |= static_cast<std::uint64_t>(at[i] == at[i - 1]) << i;
  }
#endif
  return ~same;
}

}  // namespace

std::size_t FindDistanceStretches(std::span<const std::uint8_t> levels,
                                  const DistanceTable& distances,
                                  std::span<DistanceStretch> stretches) {
  if (levels.empty()) return 0;
  std::size_t count = 0;
  std::int32_t distance = distances[levels[0]];
  stretches[count++] = {0, distance};
  for (std::size_t x = 0; x < levels.size(); x += kColumns) {
    std::uint64_t changes = Changes(levels.data() + x);
    if (x == 0) changes &= ~std::uint64_t{1};
    if (levels.size() - x < kColumns) {
      changes &= (std::uint64_t{1} << (levels.size() - x)) - 1;
    }
    for (; changes != 0; changes &= changes - 1) {
      const auto column = x + static_cast<std::size_t>(std::countr_zero(changes));
      const std::int32_t next = distances[levels[column]];
      stretches[count] = {static_cast<std::int32_t>(column), next};
      count += next != distance ? 1 : 0;  // levels of the same distance go on as one stretch
      distance = next;
    }
  }
  stretches[count] = {static_cast<std::int32_t>(levels.size()), 0};
  return count;
}

}  // namespace plenovia
